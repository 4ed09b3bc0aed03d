#include "gedcom/report/GedcomMutations.h"

#include <QByteArrayList>

#include <random>

namespace lineforge
{

namespace
{
class Mutation
{
public:
    explicit Mutation(unsigned number) : next_(number + 1) {}

    // Below that count.
    qsizetype Any(qsizetype count) { return static_cast<qsizetype>(next_() / 7) % count; }
    bool OneIn(qsizetype count) { return Any(count) == 0; }
    const char* AnyOf(std::initializer_list<const char*> texts)
    {
        return *(texts.begin() + Any(static_cast<qsizetype>(texts.size())));
    }

private:
    std::minstd_rand next_;
};

QByteArray Reference(Mutation& mutation, const char* letter)
{
    return QByteArray("@") + letter + QByteArray::number(1 + mutation.Any(6)) + "@";
}

QByteArray Individual(Mutation& mutation, qsizetype number)
{
    QByteArray lines = "0 @I" + QByteArray::number(number) + "@ INDI\n1 NAME John Paul /Smith/\n";
    if (!mutation.OneIn(5))
        lines += "2 GIVN John Paul\n";
    if (!mutation.OneIn(5))
        lines += "2 SURN Smith\n";
    if (!mutation.OneIn(4))
        lines += QByteArray("1 SEX ") + mutation.AnyOf({"M\n", "F\n", "m\n", "M \n"});
    if (!mutation.OneIn(3))
        lines += "1 BIRT\n2 DATE 10 May 1901\n2 PLAC Leeds, England\n";
    if (mutation.OneIn(3))
        lines += "1 CHR\n2 DATE 1902\n2 PLAC\n";
    if (mutation.OneIn(2))
        lines += "1 NOTE 100 lines, 20 CHIL or so\n";
    return lines;
}

QByteArray Family(Mutation& mutation, qsizetype number)
{
    QByteArray lines = "0 @F" + QByteArray::number(number) + "@ FAM\n";
    if (!mutation.OneIn(5))
        lines += "1 HUSB " + Reference(mutation, "I") + "\n";
    if (!mutation.OneIn(5))
        lines += "1 WIFE " + Reference(mutation, "I") + "\n";
    if (!mutation.OneIn(3))
        lines += "1 MARR\n2 DATE 20 June 1925\n2 PLAC York\n";
    for (qsizetype child = mutation.Any(5); child > 0; --child)
        lines += "1 CHIL " + Reference(mutation, "I") + "\n";
    if (mutation.OneIn(2))
        lines += "1 NOTE x0\n";
    return lines;
}

void ChangeBytes(Mutation& mutation, QByteArray& source)
{
    for (qsizetype times = mutation.Any(6); times > 0; --times) {
        const qsizetype at = mutation.Any(source.size());
        switch (mutation.Any(5)) {
        case 0:
            source[at] = static_cast<char>(mutation.Any(256));
            break;
        case 1:
            source.remove(at, 1 + mutation.Any(12));
            break;
        case 2:
            source.insert(at, source.mid(mutation.Any(source.size()), mutation.Any(80)));
            break;
        case 3:
            source.insert(at, mutation.AnyOf({"0", " ", "\n", "\r", "0 ", "\n0 ", "  ", "@I1@", "\xC3\xA9", "\xFC"}));
            break;
        default:
            source.insert(at, mutation.AnyOf({"\n1 CHIL @I2@", "\n1 WIFE", "\n0 TRLR", "\n0 @F1@ FAM", "\n10 NOTE x"}));
        }
        if (source.isEmpty())
            source = "0";
    }
}
} // namespace

QByteArray MutatedSource(unsigned number)
{
    Mutation mutation(number);
    QByteArray source = mutation.AnyOf({"0 HEAD\n1 CHAR ANSI\n", "0 HEAD\n",
                                        "\xEF\xBB\xBF"
                                        "0 HEAD\n1 CHAR UTF-8\n"});
    for (qsizetype people = 1 + mutation.Any(6), person = 1; person <= people; ++person)
        source += Individual(mutation, person);
    for (qsizetype families = 1 + mutation.Any(4), family = 1; family <= families; ++family)
        source += Family(mutation, family);
    source += "0 TRLR\n";
    if (!mutation.OneIn(5))
        ChangeBytes(mutation, source);
    source.replace("\n", mutation.AnyOf({"\r\n", "\n", "\r"}));
    constexpr unsigned rare = 100;
    if (number % rare == 0)
        source.chop(mutation.Any(source.size() / 3 + 1));
    else
        source += "\n\n";
    return source;
}

} // namespace lineforge
