#include "gui/EveryWindow.h"

#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QMetaEnum>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A label without a text is passed over.
bool IsListed(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return IsOurs(widget) && !(label && label->text().isEmpty());
}

// One line for each widget that readers meet, in the order in which they meet them: its object name, what it is, what
// it is called and, where there is more to say, that in brackets.
void AddSpoken(QStringList& lines, QAccessibleInterface& told)
{
    const auto* widget = qobject_cast<const QWidget*>(told.object());
    if (!widget || !widget->isVisible())
        return;
    const QString name = told.text(QAccessible::Name);
    const QString description = told.text(QAccessible::Description);
    const QString role = QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(told.role()));
    if (IsListed(*widget))
        lines += QStringList{widget->objectName(), role, name.trimmed()}.join(u" | "_s) +
                 (description.isEmpty() || description == name ? QString() : u" ("_s + description + u')');
    for (int index = 0; index < told.childCount(); ++index)
        if (QAccessibleInterface* child = told.child(index))
            AddSpoken(lines, *child);
}

// The lines below the heading "[window]" of the list that stands beside this test.
QStringList ListedFor(const QString& window)
{
    QFile list(QStringLiteral(LINEFORGE_SPOKEN_NAMES));
    if (!list.open(QIODevice::ReadOnly))
        return {};
    QStringList lines;
    bool isHere = false;
    for (const QString& line : QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'['))
            isHere = line == u'[' + window + u']';
        else if (isHere)
            lines += line;
    }
    return lines;
}

using SpokenNamesTest = EveryWindowTest;

INSTANTIATE_TEST_SUITE_P(Windows, SpokenNamesTest, testing::ValuesIn(every_window::all), NameOf);

TEST_P(SpokenNamesTest, AreThoseOfTheList)
{
    QStringList spoken;
    AddSpoken(spoken, *QAccessible::queryAccessibleInterface(&Open()));
    spoken.replaceInStrings(Home.Path(), u"<home>"_s);
    EXPECT_EQ(spoken, ListedFor(QString::fromLatin1(GetParam().Name))) << spoken.join(u'\n').toStdString();
}

} // namespace
} // namespace lineforge
