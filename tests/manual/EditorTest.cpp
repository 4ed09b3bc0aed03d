#include "editor/EditorWindow.h"
#include "manual/Pages.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <gmock/gmock.h>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;

namespace
{
TEST(ManualEditor, EveryMenuEntryIsDescribed_AndNoOther)
{
    const EditorWindow editor;
    QStringList entries;
    for (const QAction* menu : editor.findChild<QMenuBar*>()->actions())
        for (const QAction* entry : menu->menu()->actions())
            if (!entry->isSeparator())
                entries += QString(menu->text() + u" > " + entry->text()).remove(u'&');
    EXPECT_THAT(PageNamed(u"editor.html"_s).Names(u"menus"_s), testing::UnorderedElementsAreArray(entries));
}
} // namespace

} // namespace lineforge::manual
