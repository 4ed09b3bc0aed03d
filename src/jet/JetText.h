#pragma once

#include <iconv.h>
#include <string>
#include <string_view>

namespace lineforge::jet
{

// Turns the texts of one file into UTF-8.
class JetText
{
public:
    // The code page that the texts of an older file are in. Throws Refused where this system doesn't know it.
    static JetText InCodePage(unsigned codePage);
    static JetText InUnicode();

    JetText(JetText&& other) noexcept;
    ~JetText();
    JetText(const JetText&) = delete;
    JetText& operator=(const JetText&) = delete;

    // Appends the text; false when some of it is no character, which then reads as U+FFFD.
    [[nodiscard]] bool Append(std::string_view stored, std::string& utf8);

private:
    JetText(const char* encoding, std::size_t unit);
    [[nodiscard]] bool Convert(std::string_view stored, std::string& utf8);
    void Flush(std::string& utf8);

    iconv_t converter_;
    std::size_t unit_; // bytes
    std::string expanded_;
};

} // namespace lineforge::jet
