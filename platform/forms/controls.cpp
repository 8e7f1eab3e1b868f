#include "platform/forms/controls.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quittika {

namespace {

const std::string kNothing;

void require(bool condition, int error) {
    if (!condition) {
        throw Laufzeitfehler(error);
    }
}

const std::string& item(const std::vector<std::string>& items, int index) {
    return index >= 0 && index < static_cast<int>(items.size()) ? items[static_cast<std::size_t>(index)]
                                                                : kNothing;
}

} // namespace

TextBox::TextBox(Container& container, const Named& named, std::string text)
    : Control(container, named), Text(*this, PropertyId::Text, std::move(text)) {
    BackColor.adopt(color::kWindow);
}

void PictureControl::show_picture(std::string path) {
    Picture.adopt(std::move(path));
    changed(PropertyId::Picture);
}

void PictureControl::show_page(std::shared_ptr<const DrawnPage> page) {
    page_ = std::move(page);
    Control::changed(PropertyId::Picture);
}

void PictureControl::changed(PropertyId id) {
    if (id == PropertyId::Picture) {
        page_.reset();
    }
    Control::changed(id);
}

void CommandButton::changed(PropertyId id) {
    if (id == PropertyId::Default && Default()) {
        for (Control* control : form().controls()) {
            auto* other = dynamic_cast<CommandButton*>(control);
            if (other != nullptr && other != this) {
                other->Default = false;
            }
        }
    }
    Control::changed(id);
}

void TextBox::user_type(std::string text) {
    ++form().typed_;
    Text = std::move(text);
}

void TextBox::user_leave() {
    Control::user_leave();
    form().FieldLeft();
}

void TextBox::select_all() {
    SelStart.adopt(0);
    SelLength.adopt(static_cast<int>(zeichenzahl(Text())));
    changed(PropertyId::SelLength);
}

void TextBox::fire_for(PropertyId id) {
    if (id == PropertyId::Text) {
        Change();
    }
}

void CheckBox::check(PropertyId id, std::int64_t value) const {
    Control::check(id, value);
    require(id != PropertyId::Value || (value >= 0 && value <= 2), fehler::kEigenschaft);
}

void CheckBox::fire_for(PropertyId id) {
    if (id == PropertyId::Value) {
        Click();
    }
}

void OptionButton::changed(PropertyId id) {
    if (id == PropertyId::Value && Value()) {
        switch_siblings_off();
    }
    Control::changed(id);
}

void OptionButton::switch_siblings_off() {
    for (Control* control : form().controls()) {
        auto* sibling = dynamic_cast<OptionButton*>(control);
        if (sibling == nullptr || sibling == this || &sibling->container() != &container() ||
            !sibling->Value()) {
            continue;
        }
        sibling->Value.adopt(false);
        if (sibling->view() != nullptr) {
            sibling->view()->property_changed(PropertyId::Value);
        }
    }
}

void OptionButton::fire_for(PropertyId id) {
    if (id == PropertyId::Value) {
        Click();
    }
}

const std::string& ListBox::List(int index) const {
    return item(items_, index);
}

void ListBox::AddItem(std::string text) {
    items_.push_back(std::move(text));
    tell_items();
}

void ListBox::AddItem(std::string text, int index) {
    require(index >= 0 && index <= ListCount(), fehler::kUngueltigerAufruf);
    items_.insert(items_.begin() + index, std::move(text));
    if (index <= ListIndex()) {
        ListIndex.adopt(ListIndex() + 1);
    }
    tell_items();
}

void ListBox::RemoveItem(int index) {
    require(index >= 0 && index < ListCount(), fehler::kUngueltigerAufruf);
    items_.erase(items_.begin() + index);
    if (index == ListIndex()) {
        ListIndex.adopt(-1);
    } else if (index < ListIndex()) {
        ListIndex.adopt(ListIndex() - 1);
    }
    tell_items();
}

void ListBox::Clear() {
    items_.clear();
    ListIndex.adopt(-1);
    tell_items();
}

void ListBox::assign(std::vector<std::string> items, int first) {
    require(first >= 0 && first <= ListCount(), fehler::kUngueltigerAufruf);
    if (first == 0) {
        items_ = std::move(items); // no room for more than it holds
    } else {
        items_.resize(static_cast<std::size_t>(first));
        std::move(items.begin(), items.end(), std::back_inserter(items_));
    }
    if (ListIndex() >= ListCount()) {
        ListIndex.adopt(-1);
    }
    tell_items();
}

void ListBox::show_rows(std::vector<int> indices) {
    std::vector<int> rows(items_.size(), -1);
    for (int row = 0; const int index : indices) {
        require(index >= 0 && index < ListCount(), fehler::kUngueltigerAufruf);
        int& place = rows[static_cast<std::size_t>(index)];
        require(place < 0, fehler::kUngueltigerAufruf);
        place = row++;
    }
    shown_ = std::move(indices);
    rows_ = std::move(rows);
    in_own_order_ = false;
    notify_items();
}

void ListBox::show_all() {
    if (!in_own_order_) {
        own_order();
        notify_items();
    }
}

void ListBox::own_order() {
    in_own_order_ = true;
    shown_.clear();
    rows_.clear();
}

int ListBox::item_in(int row) const {
    if (row < 0 || row >= shown_count()) {
        return -1;
    }
    return in_own_order_ ? row : shown_[static_cast<std::size_t>(row)];
}

int ListBox::row_of(int index) const {
    if (index < 0 || index >= ListCount()) {
        return -1;
    }
    return in_own_order_ ? index : rows_[static_cast<std::size_t>(index)];
}

void ListBox::tell_items() {
    own_order();
    ++revision_;
    notify_items();
    Changed();
}

void ListBox::user_select(int index) {
    if (index == ListIndex()) {
        Click();
    } else {
        ListIndex = index;
    }
}

void ListBox::check(PropertyId id, std::int64_t value) const {
    Control::check(id, value);
    require(id != PropertyId::ListIndex || (value >= -1 && value < ListCount()), fehler::kEigenschaft);
}

void ListBox::fire_for(PropertyId id) {
    if (id == PropertyId::ListIndex) {
        Changed();
        Click();
    }
}

ComboBox::ComboBox(Container& container, const Named& named, std::vector<std::string> items, bool editable)
    : Control(container, named), items_(std::move(items)), editable_(editable) {
    BackColor.adopt(color::kWindow);
}

const std::string& ComboBox::List(int index) const {
    return item(items_, index);
}

void ComboBox::AddItem(std::string text) {
    items_.push_back(std::move(text));
    notify_items();
}

void ComboBox::Clear() {
    items_.clear();
    ListIndex.adopt(-1);
    Text.adopt({});
    notify_items();
}

void ComboBox::user_select(int index) {
    if (index == ListIndex()) {
        Click();
    } else {
        ListIndex = index;
    }
}

void ComboBox::check(PropertyId id, std::int64_t value) const {
    Control::check(id, value);
    require(id != PropertyId::ListIndex || (value >= -1 && value < ListCount()), fehler::kEigenschaft);
}

void ComboBox::fire_for(PropertyId id) {
    if (id == PropertyId::ListIndex) {
        Text.adopt(List(ListIndex()));
        Click();
    } else if (id == PropertyId::Text) {
        Change();
    }
}

RangeControl::RangeControl(Container& container, const Named& named, int min, int max, int value)
    : Control(container, named),
      Min(*this, PropertyId::Min, min),
      Max(*this, PropertyId::Max, max),
      Value(*this, PropertyId::Value, value) {}

void RangeControl::check(PropertyId id, std::int64_t value) const {
    Control::check(id, value);
    require(id != PropertyId::Value || (value >= Min() && value <= Max()), fehler::kEigenschaft);
}

void RangeControl::changed(PropertyId id) {
    Control::changed(id);
    if ((id == PropertyId::Min || id == PropertyId::Max) && Min() <= Max()) {
        Value = std::clamp(Value(), Min(), Max());
    }
}

void RangeControl::fire_for(PropertyId id) {
    if (id == PropertyId::Value) {
        Change();
    }
}

void Slider::fire_for(PropertyId id) {
    RangeControl::fire_for(id);
    if (id == PropertyId::Value) {
        Click();
    }
}

Timer::Timer(Container& container, const Named& named, int interval_ms, bool enabled)
    : Control(container, named), Interval(*this, PropertyId::Interval, interval_ms) {
    Enabled.adopt(enabled);
}

SSTab::SSTab(Container& container, const Named& named, std::vector<std::string> captions)
    : Control(container, named), captions_(std::move(captions)) {
    for (int index = 0; index < static_cast<int>(captions_.size()); ++index) {
        pages_.emplace_back(*this, index);
    }
}

std::string SSTab::main_value() const {
    return item(captions_, Tab());
}

int SSTab::index_of(const Container& page) const {
    const auto is_page = [&page](const Page& one) { return &one == &page; };
    return static_cast<int>(std::find_if(pages_.begin(), pages_.end(), is_page) - pages_.begin());
}

void SSTab::check(PropertyId id, std::int64_t value) const {
    Control::check(id, value);
    require(id != PropertyId::Tab || (value >= 0 && value < static_cast<int>(captions_.size())),
            fehler::kEigenschaft);
}

void SSTab::fire_for(PropertyId id) {
    if (id == PropertyId::Tab) {
        Click();
    }
}

void DriveListBox::fire_for(PropertyId id) {
    if (id == PropertyId::Path) {
        Change();
    }
}

void DirListBox::fire_for(PropertyId id) {
    if (id == PropertyId::Path) {
        Change();
    }
}

} // namespace quittika
