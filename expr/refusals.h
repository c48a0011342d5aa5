// Refusals of an exchange that the user is not told of.
#pragma once

namespace pelmar {

/// While one lives, an exchange that is refused fails without a prompt and leaves the focus where it is: where the
/// caller asks later, and where the user is being told of a refusal already.
class SilentRefusals {
public:
    SilentRefusals() { ++s_count; }
    ~SilentRefusals() { --s_count; }
    SilentRefusals(const SilentRefusals&) = delete;
    SilentRefusals& operator=(const SilentRefusals&) = delete;

    static bool AreOn() { return s_count > 0; }

private:
    static inline int s_count = 0;
};

} // namespace pelmar
