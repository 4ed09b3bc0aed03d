#include "gedcom/report/LiteralMachine.h"

namespace lineforge
{

namespace
{
QByteArray Small(QByteArray text)
{
    for (char& character : text)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character + 32);
    return text;
}

bool Same(const QByteArray& a, const QByteArray& b)
{
    return Small(a) == Small(b);
}

bool EndsLine(char character)
{
    return character == '\r' || character == '\n';
}
} // namespace

char LiteralMachine::Next()
{
    if (AtEnd())
        throw RuntimeError(ErrorNumber::InputPastEnd);
    return source_[at_++];
}

void LiteralMachine::ParseLine()
{
    if (!Line.isEmpty())
        Level = Line.left(1);
    else
        Level.clear();
    std::optional<qsizetype> tagMark;
    std::optional<qsizetype> valueMark;
    Rest.clear();
    for (qsizetype at = 2; at < Line.size(); ++at) {
        const char character = Line[at];
        if (tagMark && valueMark) {
            if (!EndsLine(character))
                Rest += character;
            continue;
        }
        if (!tagMark) {
            if (character == ' ') {
                Tag = Line.mid(2, at - 2);
                tagMark = Tag.size();
            } else {
                Tag = Line.mid(2, at - 1);
            }
            continue;
        }
        const qsizetype valueAt = 2 + *tagMark + 1;
        if (character == ' ')
            valueMark = at - valueAt;
        Value = Line.mid(valueAt, at - valueAt + 1);
    }
}

void LiteralMachine::Seek()
{
    Line.clear();
    Value.clear();
    for (;;) {
        if (AtEnd())
            return;
        char character = Next();
        while (EndsLine(character) && Line.size() < 4)
            character = Next();
        if (!EndsLine(character)) {
            Line += character;
            continue;
        }
        ParseLine();
        if (Level == "0" && Same(SeekFor, "CHIL")) {
            Put("");
            ScanState = 1;
            return;
        }
        if (Same(Tag, SeekFor)) {
            ScanState = 1;
            if (Same(Tag, "CHIL") || Same(Tag, "WIFE") || Same(Tag, "HUSB"))
                ScanState = 0;
            return;
        }
        if (Level == "0" && ScanState == 1)
            return;
        Line.clear();
    }
}

template <std::size_t Size>
void LiteralMachine::Store(std::array<QByteArray, Size>& list, int& next)
{
    for (std::size_t index = 1; index < Size; ++index)
        if (Same(list[index], Tag))
            return;
    if (next >= static_cast<int>(Size))
        throw RuntimeError(ErrorNumber::Subscript);
    list[static_cast<std::size_t>(next++)] = Tag;
}

LiteralMachine::Stretch LiteralMachine::ReadStretch()
{
    for (;;) {
        if (AtEnd())
            return Stretch::CutOff;
        const char character = Next();
        if (EndsLine(character))
            return Stretch::Complete;
        if (ScanState == 1 && character == ' ')
            return Stretch::GivenUp;
        if (ScanState == 1) {
            Value += character;
        } else if (!Tag.isEmpty() && character == ' ') {
            ScanState = 1;
            Value += Next();
        } else if (ScanState == 0 && character == ' ') {
            Tag += Next();
        } else if (ScanState == 0) {
            Tag += character;
        }
    }
}

bool LiteralMachine::IndexFile()
{
    for (;;) {
        do {
            if (AtEnd())
                return true;
        } while (QByteArray(1, Next()) != Level);
        const Stretch stretch = ReadStretch();
        if (stretch == Stretch::CutOff)
            return true;
        bool isStored = false;
        if (stretch == Stretch::Complete) {
            if (!Same(Tag, "HEAD") && HeadState == 0)
                return false;
            HeadState = 1;
            isStored = Same(Value, "INDI") || Same(Value, "FAM");
            if (Same(Value, "INDI"))
                Store(IndiList, IndiNext);
            else if (Same(Value, "FAM"))
                Store(FamList, FamNext);
        }
        if (!isStored)
            ScanState = 0;
        Tag.clear();
        Value.clear();
    }
}

void LiteralMachine::SeekTag(const char* tag)
{
    SeekFor = tag;
    Seek();
}

bool LiteralMachine::FindStage(int family, int occurrence)
{
    if (family > 20)
        throw RuntimeError(ErrorNumber::Subscript);
    SeekFor = FamList[static_cast<std::size_t>(family)];
    Open();
    ScanState = 0;
    Seek();
    SeekFor = Stage;
    Seek();
    for (int again = 1; again < occurrence; ++again) {
        Seek();
        // Half a thousand million seeks more would leave the same.
        if (AtEnd() && Line.isEmpty() && Value.isEmpty())
            break;
    }
    return !(Line.startsWith("0") && ScanState == 1);
}

void LiteralMachine::Individual()
{
    SeekFor = Value;
    Indi = Value;
    Open();
    Seek();
    SeekTag("NAME");
    QByteArray kept = QByteArray(" Name:     ") + Value;
    SeekTag("GIVN");
    kept = QByteArray(" Name:     ") + Value;
    SeekTag("SURN");
    Put(QByteArray(12, ' ') + kept + "  " + Value);
    SeekTag("SEX");
    Put(Same(Value, "M") ? "          Gender:     Male\r" : "          Gender:     Female\r");
    SeekTag("BIRT");
    if (Same(Tag, "BIRT")) {
        SeekTag("DATE");
        Put("     Birth Date:    " + Value + Rest);
        SeekTag("PLAC");
        Put("            Place:    " + Value + Rest);
    } else {
        Open();
        ScanState = 0;
        SeekFor = Indi;
        Seek();
    }
    SeekTag("CHR");
    if (Same(Tag, "CHR")) {
        SeekTag("DATE");
        Put("   Christening:    " + Value + Rest);
        SeekTag("PLAC");
        Put("            Place:    " + Value + Rest);
    }
    Put("\r");
}

void LiteralMachine::PutHead(int family)
{
    Put("   " + QByteArray(51, '-'));
    Put("\r");
    Put("   HEAD OF FAMILY (" + QByteArray::number(family) + ")\r");
    Put("\r");
}

void LiteralMachine::PutMarriage()
{
    SeekTag("DATE");
    Put("   MARRIAGE");
    Put("            Date:    " + Value + Rest + "\r");
    SeekTag("PLAC");
    Put("           Place:    " + Value + Rest + "\r");
}

// False: the family has come to its end.
bool LiteralMachine::Pass(int family, int& occurrence, int children)
{
    const bool isThere = FindStage(family, occurrence);
    if (Stage == "MARR") {
        if (isThere)
            PutMarriage();
        Stage = "CHIL";
        return true;
    }
    if (Stage == "CHIL" && !isThere)
        return false;
    if (Stage == "CHIL" && occurrence == 1) {
        Put("");
        Put("    CHILDREN");
    }
    if (Stage == "HUSB")
        PutHead(family);
    if (isThere)
        Individual();
    else if (Stage != "HUSB")
        return false;
    if (Stage == "HUSB") {
        Stage = "WIFE";
        Put("    SPOUSE ");
    } else if (Stage == "WIFE") {
        Stage = "MARR";
    } else if (occurrence == children) {
        throw GivenUp();
    } else if (++occurrence > 32767) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return true;
}

void LiteralMachine::Family(int family, int children)
{
    int occurrence = 1;
    Stage = "HUSB";
    while (Pass(family, occurrence, children)) {}
    Stage = "HUSB";
    Value.clear();
    Tag.clear();
}

bool LiteralMachine::Convert(int children)
{
    try {
        Tag.clear();
        Level = "0";
        Open();
        if (!IndexFile()) {
            HeadState = 2;
            return true;
        }
        Stage = "HUSB";
        const int count = FamNext;
        for (int family = 1; family <= count; ++family)
            Family(family, children);
    } catch (const RuntimeError& error) {
        Error = error.Number;
    } catch (const GivenUp&) {
        return false;
    }
    return true;
}

} // namespace lineforge
