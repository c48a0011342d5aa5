// Where the values of records come from: the library's files, or any text of settings.
#pragma once

namespace pelmar {

/// Reads values as the settings files hold them. What is missing, or is no value, yields the fallback; a real passes
/// through single precision, the fallback too.
class ValueSource {
public:
    virtual int Whole(const char* section, const char* key, int fallback) const = 0;
    virtual double Real(const char* section, const char* key, double fallback) const = 0;

protected:
    ~ValueSource() = default;
};

} // namespace pelmar
