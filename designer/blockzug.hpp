#pragma once

#include "designer/designseite.hpp"

#include <functional>
#include <optional>

namespace quittika {

/// Moves the blocks with the mouse and shows where the pointer stands.
class Blockzug {
public:
    /// `bewegt`: after each move of the pointer on a block. `gezogen`: at the end of a drag, with what stood
    /// there before.
    Blockzug(FORM_DESIGNER& form, Designseite& seite, std::function<void(std::size_t nummer)> bewegt,
             std::function<void(const Designseite::Stand& vorher)> gezogen);

    void MouseDown(std::size_t nummer, const MouseEvent& maus);
    void MouseMove(std::size_t nummer, const MouseEvent& maus);
    void MouseUp();
    /// A drag under way ends where it began, and the mouse moves nothing until its button is released.
    /// Returns whether one is under way, or was, with the button still held.
    bool abbrechen();
    bool laeuft() const { return vorher_.has_value(); }

private:
    struct Mausort {
        float x = 0;
        float y = 0;
    };
    void ort_merken(std::size_t nummer, const MouseEvent& maus);

    FORM_DESIGNER& form_;
    Designseite& seite_;
    std::function<void(std::size_t)> bewegt_;
    std::function<void(const Designseite::Stand&)> gezogen_;
    double MAUS_X_ = 0; ///< pointer on the page, twips
    double MAUS_Y_ = 0;
    Mausort MAUS_START_; ///< pointer inside the element when the button was last not held
    std::optional<Designseite::Stand> vorher_;
    bool abgebrochen_ = false;
};

} // namespace quittika
