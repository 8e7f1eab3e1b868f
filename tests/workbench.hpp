#pragma once

#include "platform/desktop.hpp"
#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

#include <functional>

namespace quittika::test {

/// A window with what a big one is made of: pages behind tabs, a picture on a sheet, a patch and a frame that
/// the program places, fields.
struct WorkbenchForm : Form {
    WorkbenchForm() : Form("Workbench", "Werkbank", {.width = twips(520), .height = twips(420)}) {}
    ListBox Log{*this, Named("Log").data_only()}; ///< what has happened
    SSTab Tabs{*this, "Tabs", {"&Blatt", "&Felder && Farben"}};

    Container& SheetPage = Tabs.page(0);
    CheckBox Movable{SheetPage, "Movable", "Das Bild ist be&weglich"};
    Frame Sheet{SheetPage, Named("Sheet").following({0, 0, 6000, 4500}), "&Seite"};
    Image Block{Sheet, Named("Block").at({450, 600, 1500, 900})};

    Container& FieldPage = Tabs.page(1);
    TextBox Service{FieldPage, "Service"};
    Slider Red{FieldPage, "Red", 0, 255, 0};
    Shape Patch{FieldPage, Named("Patch").at({150, 75, 300, 450})};

    Frame Choice{*this, Named("Choice").movable({5000, 0, 2000, 1000})};
};

/// The program: what its window does.
class Workbench {
public:
    explicit Workbench(Desktop& desktop) {
        desktop.adopt(form_);
        form_.Movable.Click = [this] { let_move(form_.Movable.ticked()); };
        form_.Block.Click = [this] { form_.Log.AddItem("Bild"); };
        form_.Tabs.Click = [this] { form_.Log.AddItem("Blatt " + form_.Tabs.Tab.as_text()); };
        form_.Service.LostFocus = [this] { form_.Log.AddItem("Feld verlassen"); };
        form_.Red.Click = [this] { form_.Patch.BackColor = color::rgb(form_.Red.Value(), 0, 0); };
        form_.Red.Change = [this] { form_.Log.AddItem("Rot " + form_.Red.Value.as_text()); };
        form_.Show();
    }

    WorkbenchForm& form() { return form_; }

private:
    void let_move(bool movable) {
        form_.Block.MouseMove = std::function<void(const MouseEvent&)>();
        if (movable) {
            form_.Block.MouseMove = [this](const MouseEvent& at) { move(at); };
        }
    }
    void move(const MouseEvent& at) {
        if (at.button == MouseButton::Left) {
            form_.Block.Left = form_.Block.Left() + at.x - start_.x;
            form_.Block.Top = form_.Block.Top() + at.y - start_.y;
        } else {
            start_ = at;
        }
    }

    WorkbenchForm form_;
    MouseEvent start_{};
};

} // namespace quittika::test
