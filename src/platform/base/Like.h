#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <utility>
#include <vector>

namespace lineforge
{

// A pattern that texts are compared with, case ignored: `*` any run of characters, `?` any one, `#` a digit, `[a-cx]`
// one of a class, `[!a-cx]` one of all others. `[]` stands for nothing at all, and a bracket that isn't closed for
// itself. In a class a hyphen at either end is a hyphen; a range that falls holds nothing.
class LikePattern
{
public:
    explicit LikePattern(QStringView pattern);

    // Whether the whole text fits.
    bool Matches(QStringView text) const;
    bool Matches(QByteArrayView utf8) const;

private:
    enum class Kind { Run, Any, Digit, Literal, Class };
    struct Range {
        char16_t First;
        char16_t Last;
    };
    struct Part {
        Kind What;
        char16_t Character = 0;
        bool IsNegated = false;
        std::vector<Range> Ranges;
    };

    void AddClass(QStringView inside);
    static bool Fits(const Part& part, char16_t character);

    std::vector<Part> parts_;
    // The pattern is "*text*" with nothing but ASCII in the text: what it asks for in small letters.
    QByteArray sought_;
    bool isSought_ = false;
};

} // namespace lineforge
