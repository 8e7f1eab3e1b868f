#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quittika {

/// A colour 0x00BBGGRR; a negative value names a colour of the desktop's own scheme.
using Color = std::int32_t;

namespace color {
constexpr Color kWhite = 0x00FFFFFF;
constexpr Color kBlack = 0;
constexpr Color kYellow = 65535;
constexpr Color kGrey = 12632256;          ///< grey of the frames
constexpr Color kLightGrey = 14737632;     ///< grey of locked fields and of buttons at rest
constexpr Color kButtonFace = -2147483633; ///< the desktop's button colour
constexpr Color kWindow = -2147483643;     ///< the desktop's colour of text fields
constexpr Color kWindowText = -2147483640; ///< the desktop's text colour
constexpr Color rgb(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}
} // namespace color

enum class PropertyId : std::uint8_t {
    Text,
    Value,
    Caption,
    Enabled,
    Visible,
    BackColor,
    ForeColor,
    FontBold,
    ListIndex,
    ListCount,
    Min,
    Max,
    Interval,
    ToolTipText,
    WindowState,
    Left,
    Top,
    Width,
    Height,
    Picture,
    Path,
    Tab,
    SelStart,
    SelLength,
    Locked,
    Modified,
    Default,
    OwnLook,
};

/// Spelling of a property as scripts write it ("BackColor").
std::string_view property_name(PropertyId id);

/// The property of that spelling, if there is one.
std::optional<PropertyId> property_id(std::string_view name);

class PropertyBase;

/// Whatever owns properties: a control or a form.
class PropertyHost {
public:
    PropertyHost() = default;
    PropertyHost(const PropertyHost&) = delete;
    PropertyHost& operator=(const PropertyHost&) = delete;
    virtual ~PropertyHost() = default;

    /// The property of that kind, or null.
    const PropertyBase* property(PropertyId id) const;
    /// Takes the values of another host of the same class without telling anybody.
    void adopt_values(const PropertyHost& other);

protected:
    template <class T> friend class Property;
    friend class PropertyBase;

    /// Called before an integer property takes `value`; throws `Laufzeitfehler` 380 to refuse it.
    virtual void check(PropertyId /*id*/, std::int64_t /*value*/) const {}
    /// Called after a property has changed.
    virtual void changed(PropertyId /*id*/) {}

private:
    PropertyBase* first_ = nullptr;
};

/// What all properties share: their kind, and their value as a script sees it.
class PropertyBase {
public:
    PropertyBase(PropertyHost& host, PropertyId id) : host_(host), next_(host.first_), id_(id) {
        host.first_ = this;
    }
    PropertyBase(const PropertyBase&) = delete;
    PropertyBase& operator=(const PropertyBase&) = delete;

    PropertyId id() const { return id_; }
    /// The value as text; truth values are "-1" and "0".
    virtual std::string as_text() const = 0;

protected:
    virtual ~PropertyBase() = default;
    PropertyHost& host() const { return host_; }

private:
    friend class PropertyHost;
    /// Takes the value of the same property of another host without telling anybody.
    virtual void adopt_from(const PropertyBase& other) = 0;

    PropertyHost& host_;
    PropertyBase* next_;
    PropertyId id_;
};

/// A value that tells its owner when it changes. Read with `x()`, write with `x = value`;
/// writing the value that already stands there does nothing.
template <class T> class Property final : public PropertyBase {
public:
    Property(PropertyHost& host, PropertyId id, T start = T{})
        : PropertyBase(host, id), value_(std::move(start)) {}

    const T& operator()() const { return value_; }

    Property& operator=(T value) {
        if (value == value_) {
            return *this;
        }
        if constexpr (std::is_integral_v<T>) {
            host().check(id(), static_cast<std::int64_t>(value));
        }
        value_ = std::move(value);
        host().changed(id());
        return *this;
    }

    /// Takes a value without telling anybody.
    void adopt(T value) { value_ = std::move(value); }

    std::string as_text() const override {
        if constexpr (std::is_same_v<T, std::string>) {
            return value_;
        } else if constexpr (std::is_same_v<T, bool>) {
            return value_ ? "-1" : "0";
        } else {
            return std::to_string(value_);
        }
    }

private:
    void adopt_from(const PropertyBase& other) override {
        value_ = dynamic_cast<const Property&>(other).value_;
    }

    T value_;
};

} // namespace quittika
