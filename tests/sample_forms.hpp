#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika::test {

/// A window with what the program reads and moves: a sheet of paper with a picture on it, and a frame that
/// is put beside the picture.
struct SampleForm : Form {
    SampleForm() : Form("Sample", "Sample", {.width = twips(600), .height = twips(400)}) {}
    Frame Page{*this, Named("Page").following({30, 30, 6300, 5000})};
    Image Block{Page, Named("Block").at({100, 200, 1507, 1000})};
    Frame Choice{*this, Named("Choice").movable({0, 0, 2000, 1000})};
    Label Text{Choice, "Text", "Farbe auswählen"};
    SSTab Tabs{*this, "Tabs", {"A", "B"}};
    Shape Patch{Tabs.page(1), Named("Patch").at({150, 75, 300, 450})};
    ListBox Data{*this, Named("Data").data_only()};
};

/// Moves the picture with the mouse, and the frame to its upper edge with the right button.
class SampleModule {
public:
    explicit SampleModule(SampleForm& form) : form_(form) {
        form_.Load = [this] { factor_ = form_.Page.Width() / 210.0; };
        form_.Page.Resize = [this] { factor_ = form_.Page.Width() / 210.0; };
        form_.Block.MouseDown = [this](const MouseEvent& at) { press(at); };
        form_.Block.MouseMove = [this](const MouseEvent& at) { drag(at); };
    }
    /// Twips a millimetre of the paper.
    double factor() const { return factor_; }

private:
    void press(const MouseEvent& at) {
        start_ = at;
        if (at.button == MouseButton::Right) {
            form_.Choice.Left = form_.Page.Left() + form_.Block.Left();
            form_.Choice.Top = form_.Page.Top() + form_.Block.Top() - form_.Choice.Height();
        }
    }
    void drag(const MouseEvent& at) {
        if (at.button == MouseButton::Left) {
            form_.Block.Left = form_.Block.Left() + at.x - start_.x;
            form_.Block.Top = form_.Block.Top() + at.y - start_.y;
        }
    }

    SampleForm& form_;
    double factor_ = 0;
    MouseEvent start_{};
};

} // namespace quittika::test
