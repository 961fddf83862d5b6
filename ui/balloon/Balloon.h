#pragma once

namespace tarvo {

/// A short message on the user's screen, in whatever way the desktop allows; it disappears when it is destroyed.
/// Used on the main thread only.
class Balloon {
public:
    Balloon() = default;
    virtual ~Balloon() = default;
    Balloon(const Balloon &) = delete;
    Balloon &operator=(const Balloon &) = delete;

    /// @return whether the pointer is on it
    virtual bool isUnderPointer() const { return false; }
};

} // namespace tarvo
