#include "editor/TextArea.h"
#include "editor/TextFormat.h"

#include <QApplication>

#include <cstdint>
#include <cstdlib>

namespace
{
using namespace lineforge;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

TextArea& Area()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* names[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(count, names);
    static TextArea area;
    return area;
}

// What is written in any form is read back as the same text.
void RequireWritable(const FormedText& text)
{
    for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Utf8WithMark, TextEncoding::Windows1252})
        for (const LineEnds ends : {LineEnds::CrLf, LineEnds::Lf, LineEnds::Cr}) {
            const auto read = ReadForm(WriteForm({text.Text, {encoding, ends, false}}).Bytes);
            Require(read && read->Text == text.Text);
        }
}
} // namespace

// Whatever the file: it is no text, or it goes through the field and back into the file without a loss.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    std::optional<FormedText> text = ReadForm(bytes);
    if (!text)
        return 0;
    Area().SetText(text->Text);
    Require(Area().Text() == text->Text);
    if (!text->Form.HasMixedEnds)
        Require(WriteForm(*text).Bytes == bytes);
    RequireWritable(*text);
    return 0;
}
