#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/forms/twips.hpp"
#include "platform/progress.hpp"

#include <functional>
#include <string>

namespace quittika::test {

/// A window with what a big one is made of: pages behind tabs, a picture on a sheet, a patch and a frame that
/// the program places, fields, long work.
struct WorkbenchForm : Form {
    WorkbenchForm() : Form("Workbench", "Werkbank", {.width = twips(520), .height = twips(420)}) {}
    CommandButton Open{*this, "Open", "Artikel&liste"};
    ListBox Log{*this, Named("Log").data_only()}; ///< what has happened
    SSTab Tabs{*this, "Tabs", {"&Blatt", "&Felder && Farben", "A&rbeit"}};

    Container& SheetPage = Tabs.page(0);
    CheckBox Movable{SheetPage, "Movable", "Das Bild ist be&weglich"};
    Frame Sheet{SheetPage, Named("Sheet").following({0, 0, 6000, 4500}), "&Seite"};
    Image Block{Sheet, Named("Block").at({450, 600, 1500, 900})};

    Container& FieldPage = Tabs.page(1);
    TextBox Service{FieldPage, "Service"};
    TextBox Remark{FieldPage, "Remark"};
    Slider Red{FieldPage, "Red", 0, 255, 0};
    Shape Patch{FieldPage, Named("Patch").at({150, 75, 300, 450})};

    Container& WorkPage = Tabs.page(2);
    CommandButton Work{WorkPage, "Work", "&Zählen"};
    Label Result{WorkPage, "Result"};
    Frame Choice{*this, Named("Choice").movable({5000, 0, 2000, 1000})};
};

/// A companion of the workbench.
struct ArticlesForm : Form {
    ArticlesForm()
        : Form("Articles", "Artikel", {.width = twips(240), .height = twips(200), .companion = true}) {
        Left.adopt(twips(540)); // beside the workbench
    }
    ListBox List{*this, "List"};
    CommandButton Done{*this, "Done", "F&ertig"};
};

/// Gives one article to the workbench, by drag or double click, and is gone.
class ArticleWindow {
public:
    ArticleWindow(ArticlesForm& form, WorkbenchForm& target) : form_(form), target_(target) {
        form.Load = [this] { form_.List.assign({"(Nägel)", "Nagel 4 mm", "Nagel 6 mm"}); };
        form.List.DragText = [this](int index) { return index == 0 ? "" : form_.List.List(index); };
        form.List.Click = [this] { target_.Log.AddItem("gewählt " + form_.List.Text()); };
        form.List.DblClick = [this] { take(form_.List.Text()); };
        form.Done.Click = [this] { form_.Close(); };
        target.Service.OLEDragDrop = [this](const std::string& text) { take(text); };
    }
    ArticleWindow(const ArticleWindow&) = delete;
    ArticleWindow& operator=(const ArticleWindow&) = delete;
    ~ArticleWindow() {
        target_.Service.OLEDragDrop = std::function<void(const std::string&)>();
        target_.Log.AddItem("Artikel zerstört");
    }
    ArticlesForm& form() { return form_; }

private:
    void take(const std::string& article) {
        form_.Close();
        target_.Service.Text = article;
        target_.Log.AddItem("genommen " + form_.List.List(0)); // all of it is still there
    }

    ArticlesForm& form_;
    WorkbenchForm& target_;
};

/// The program: both windows and what they do.
class Workbench {
public:
    Workbench(Desktop& desktop, Progress& progress)
        : progress_(progress), articles_(desktop, [this](ArticlesForm& form) {
              return std::make_unique<ArticleWindow>(form, form_);
          }) {
        desktop.adopt(form_);
        form_.Open.Click = [this] { articles_.open(); };
        form_.Movable.Click = [this] { let_move(form_.Movable.ticked()); };
        form_.Block.Click = [this] { form_.Log.AddItem("Bild"); };
        form_.Tabs.Click = [this] { form_.Log.AddItem("Blatt " + form_.Tabs.Tab.as_text()); };
        form_.Service.LostFocus = [this] { form_.Log.AddItem("Feld verlassen"); };
        form_.Red.Click = [this] { form_.Patch.BackColor = color::rgb(form_.Red.Value(), 0, 0); };
        form_.Red.Change = [this] { form_.Log.AddItem("Rot " + form_.Red.Value.as_text()); };
        form_.Work.Click = [this] { count(); };
        form_.Show();
    }

    WorkbenchForm& form() { return form_; }
    /// The open list of articles, or null.
    ArticlesForm* articles() const {
        return articles_.module() == nullptr ? nullptr : &articles_.module()->form();
    }

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
    void count() {
        constexpr std::size_t kSteps = 1000;
        std::size_t done = 0;
        const auto display = progress_.begin("Nägel werden gezählt");
        while (done < kSteps && !display->aborted()) {
            display->update(++done, kSteps);
        }
        form_.Result.Caption = done == kSteps ? "gezählt" : "abgebrochen";
    }

    Progress& progress_;
    WorkbenchForm form_;
    MouseEvent start_{};
    OpenedWindow<ArticlesForm, ArticleWindow> articles_;
};

} // namespace quittika::test
