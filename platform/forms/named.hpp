#pragma once

#include <concepts>
#include <string_view>

namespace quittika {

/// Where something stands inside its container, or a window on the screen. In twips: a pixel of an unscaled
/// screen has 15 of them.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// Who decides where a control stands and how big it is.
enum class Placing {
    Layout,   ///< the window's layout; the program neither reads nor sets it
    Program,  ///< the program alone
    Position, ///< the program says where it stands, its content how big it is; the program is told
    Window,   ///< the window's layout, and the program is told
};

/// What a form says of a control before anything else: its name and, where it matters, its place.
///
///     Frame Frame_A4{*this, Named("Frame_A4").following({300, 300, 9000, 12700})};
///     Image Image_LOGO{Frame_A4, Named("Image_LOGO").at({0, 0, 1500, 1000})};
///     ListBox List_rohdata{*this, Named("List_rohdata").data_only()};
struct Named {
    // Every text is a name, so that a control without more to say is written with its name alone.
    template <std::convertible_to<std::string_view> Text>
    Named(const Text& text) : name(text) {} // NOLINT(google-explicit-constructor)

    /// The program places the control: it stands in no layout.
    Named at(const Place& where) const { return with(Placing::Program, where); }
    /// The program moves the control, which is as big as its content; the size given holds until it is shown.
    Named movable(const Place& where) const { return with(Placing::Position, where); }
    /// The control stands in a layout; the program reads where, and `Resize` tells it of a new size. The
    /// place given holds until the window is shown.
    Named following(const Place& where) const { return with(Placing::Window, where); }
    /// The control keeps data that nobody sees; no widget shows it.
    Named data_only() const {
        Named data = *this;
        data.shown = false;
        return data;
    }
    /// The element of a control array.
    Named element(int number) const {
        Named one = *this;
        one.index = number;
        return one;
    }

    std::string_view name;
    int index = -1; ///< in the control array, -1 for none
    Placing placing = Placing::Layout;
    Place place;
    bool shown = true;

private:
    Named with(Placing who, const Place& where) const {
        Named placed = *this;
        placed.placing = who;
        placed.place = where;
        return placed;
    }
};

} // namespace quittika
