#pragma once
// The unit kind of a curve's axis: what its values measure, and so how they are converted
// for display and which unit label follows the axis name. Stored as one byte; a byte that
// names no kind is kept as it is and shown unconverted.

#include <optional>
#include <string_view>

namespace seisplot {

enum class UnitKind : unsigned char {
    Length = 1,
    Surface = 2,
    Volume = 3,
    LengthToTheFourth = 4,
    Force = 5,
    Moment = 6,
    Stress = 7,
    Rotation = 8, // radians
    PureNumber = 9,
    Acceleration = 10,
    Velocity = 11,
    Time = 12,
    // A moment that curve listings convert and plots leave as held.
    ListedMoment = 13,
};

// The kinds' names, for text that people read and type; a byte that names no kind has none.
inline constexpr struct {
    UnitKind kind;
    std::string_view name;
} kUnitKindNames[] = {
    {UnitKind::Length, "length"},
    {UnitKind::Surface, "surface"},
    {UnitKind::Volume, "volume"},
    {UnitKind::LengthToTheFourth, "length4"},
    {UnitKind::Force, "force"},
    {UnitKind::Moment, "moment"},
    {UnitKind::Stress, "stress"},
    {UnitKind::Rotation, "rotation"},
    {UnitKind::PureNumber, "number"},
    {UnitKind::Acceleration, "acceleration"},
    {UnitKind::Velocity, "velocity"},
    {UnitKind::Time, "time"},
    {UnitKind::ListedMoment, "listed-moment"},
};

constexpr std::string_view UnitKindName(UnitKind kind) {
    for (const auto& entry : kUnitKindNames) {
        if (entry.kind == kind) {
            return entry.name;
        }
    }
    return {};
}

constexpr std::optional<UnitKind> UnitKindNamed(std::string_view name) {
    for (const auto& entry : kUnitKindNames) {
        if (entry.name == name) {
            return entry.kind;
        }
    }
    return std::nullopt;
}

} // namespace seisplot
