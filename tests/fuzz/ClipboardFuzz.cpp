#include "FuzzHome.h"
#include "forms/Form3.h"
#include "platform/base/WholeLetters.h"
#include "program/branch/WorkDatabase.h"
#include "records/RecordClipboard.h"

namespace lineforge::fuzz
{
namespace
{

using namespace Qt::StringLiterals;

struct Field {
    TextBox forms::Form3::*Box;
    int Number; // by which the clipboard knows the box
    QStringView Name;
};
constexpr Field fields[] = {{&forms::Form3::Text2, 2, u"Surname"},
                            {&forms::Form3::Text3, 3, u"Forename"},
                            {&forms::Form3::Text1, 1, u"Nationality"},
                            {&forms::Form3::Text11, 11, u"Notes"}};

// As the toolkit's cursor goes, which stands within no letter.
void Select(TextBox& box, qsizetype from, qsizetype length)
{
    const QString text = box.Text;
    const auto whole = [&text](qsizetype at) { return SplitsLetter(text, at) ? at - 1 : std::min(at, text.size()); };
    const qsizetype start = whole(from);
    box.SelStart = static_cast<int>(start);
    box.SelText = text.sliced(start, whole(from + length) - start);
}

// Whether the row that was left holds what the box showed.
void RequireStored(Program& p, const Field& field, const QString& shown)
{
    Recordset& records = Records(p.Form3);
    records.MoveNext();
    records.MoveFirst();
    Require(records.Text(field.Name) == shown);
}

} // namespace
} // namespace lineforge::fuzz

// Whatever text the clipboard holds: what the box shows after a paste is what is stored, no longer than the box takes,
// and the record copies and cuts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge;
    using namespace lineforge::fuzz;

    constexpr std::size_t head = 3;
    if (size < head)
        return 0;
    static FuzzHome home;
    Program& p = home.P;
    Records(p.Form3).MoveFirst();
    const Field& field = fields[data[0] % std::size(fields)];
    TextBox& box = (*p.Form3).*field.Box;
    Select(box, data[1], data[2]);
    p.Record.ClipSource = field.Number;
    home.Clipboard.Text = QString::fromUtf8(BytesOf(data + head, size - head));

    PasteOverSelection(p.Record, *p.Form3, p.Clipboard);
    const QString shown = box.Text;
    Require(box.MaxLength == 0 || shown.size() <= box.MaxLength);
    RequireStored(p, field, shown);
    CopyRecord(p.Record, p.Scratch, p.Form3, p.Clipboard);
    p.Record.ClipSource = field.Number;
    box.SelStart = 0;
    box.SelText = box.Text;
    CutSelection(p.Record, *p.Form3, p.Clipboard);
    RequireStored(p, field, {});
    return 0;
}
