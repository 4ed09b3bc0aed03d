#include "monkey/Chance.h"

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
// By their own numbers and letters they meet each other again in records, searches and questions.
QString Number(Chance& chance)
{
    const QChar branch = chance.OneOf(u"AABBCDZ"_s);
    return branch + QString::number(chance.Between(1, 14)).rightJustified(3, u'0');
}

QString Name(Chance& chance)
{
    static const QStringList names{u"John"_s,  u"Mary"_s,   u"Paul"_s,   u"Ann"_s,         u"Smith"_s,
                                   u"Jones"_s, u"York"_s,   u"Leeds"_s,  u"Mary Louise"_s, u"Müller"_s,
                                   u"Male"_s,  u"Female"_s, u"Weaver"_s, u"Christopher"_s};
    return chance.OneOf(names);
}

QString Date(Chance& chance)
{
    return u"%1 May %2"_s.arg(chance.Between(1, 31)).arg(chance.Between(1780, 1990));
}

QString Odd(Chance& chance)
{
    static const QStringList texts{u""_s,
                                   u" "_s,
                                   u"*"_s,
                                   u"?"_s,
                                   u"[A-"_s,
                                   u"#"_s,
                                   u"="_s,
                                   u"a,b"_s,
                                   u"[x]"_s,
                                   u"O'Brien \"Bob\""_s,
                                   u"%1 %n &x"_s,
                                   u"-1"_s,
                                   u"32768"_s,
                                   u"1e99"_s,
                                   u"A0011"_s,
                                   u"first\nsecond"_s,
                                   u"\t"_s,
                                   u"Zoë 🌳 שלום"_s,
                                   QString(300, u'w'),
                                   u"'; DROP TABLE Tree99; --"_s};
    return chance.OneOf(texts);
}
} // namespace

QString TypedText(Chance& chance)
{
    struct Kind {
        int Weight;
        QString (*Text)(Chance& chance);
    };
    static constexpr Kind kinds[] = {{35, Name}, {30, Number}, {15, Date}, {20, Odd}};
    return chance.OneByWeight(kinds).Text(chance);
}

} // namespace lineforge::monkey
