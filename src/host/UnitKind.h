#pragma once
// The unit kind of a curve's axis: what its values measure, and so how they are converted
// for display and which unit label follows the axis name. Stored as one byte; a byte that
// names no kind is kept as it is and shown unconverted.

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

} // namespace seisplot
