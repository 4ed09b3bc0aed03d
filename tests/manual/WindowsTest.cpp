#include "forms/Form1.h"
#include "forms/Form11.h"
#include "forms/Form12.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"
#include "manual/Pages.h"

#include <functional>
#include <gmock/gmock.h>
#include <memory>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;
using testing::UnorderedElementsAreArray;

namespace
{
// As it reads on the screen: without the mark of the access key.
QString Plain(QString caption)
{
    return caption.remove(u'&').simplified();
}

// Every entry that does something, with the menus above it: "File > Print > Print Record".
void AddEntries(const std::vector<MenuItem*>& menu, const QString& above, QStringList& entries)
{
    for (const MenuItem* item : menu) {
        const QString path = above + Plain(item->Caption);
        if (!item->Items.empty())
            AddEntries(item->Items, path + u" > ", entries);
        else if (item->Caption != u"-")
            entries += path;
    }
}

QStringList MenuEntries(const Form& form)
{
    QStringList entries;
    AddEntries(form.Menus, {}, entries);
    return entries;
}

void ForEachControl(const Container& container, const std::function<void(Control& control)>& meet)
{
    for (Control* control : container.Controls()) {
        meet(*control);
        if (const auto* inner = dynamic_cast<const Container*>(control))
            ForEachControl(*inner, meet);
    }
}

QString CaptionOf(const Control& control)
{
    if (const auto* button = dynamic_cast<const Button*>(&control))
        return button->Caption;
    if (const auto* box = dynamic_cast<const CheckBox*>(&control))
        return box->Caption;
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        return option->Caption;
    return {};
}

// What can be pressed and has a caption; one that stands twice counts once.
QStringList Captions(const Form& form)
{
    QStringList captions;
    ForEachControl(form, [&](const Control& control) { captions += Plain(CaptionOf(control)); });
    captions.removeAll(QString());
    captions.removeDuplicates();
    return captions;
}

// What is pressed by its picture is known by its tool tip.
QStringList ToolTips(const Form& form)
{
    QStringList tips;
    ForEachControl(form, [&](const Control& control) {
        if (dynamic_cast<const Image*>(&control) || dynamic_cast<const Button*>(&control))
            tips += control.ToolTipText;
    });
    tips.removeAll(QString());
    return tips;
}

struct DescribedWindow {
    QString Name;
    std::function<std::unique_ptr<Form>()> Make;
    QString Page;
    QString Menus = u"menus"_s;
    QString Buttons = u"buttons"_s;
    QString PageOfTools = Page;
    QString Tools = u"tools"_s;

    friend void PrintTo(const DescribedWindow& window, std::ostream* out) { *out << window.Name.toStdString(); }
};

template <class F>
std::unique_ptr<Form> Make()
{
    return std::make_unique<F>();
}

const DescribedWindow windows[] = {
    {u"Form1"_s, Make<forms::Form1>, u"map.html"_s, u"menus"_s, u"buttons"_s, u"tools.html"_s},
    {u"Form2"_s, Make<forms::Form2>, u"records.html"_s, u"picture-window-menus"_s, u"picture-window-buttons"_s,
     u"records.html"_s, u"picture-window-tools"_s},
    {u"Form3"_s, Make<forms::Form3>, u"records.html"_s, u"menus"_s, u"buttons"_s},
    {u"Form4"_s, Make<forms::Form4>, u"export.html"_s},
    {u"Form5"_s, Make<forms::Form5>, u"gallery.html"_s},
    {u"Form6"_s, Make<forms::Form6>, u"compare.html"_s},
    {u"Form7"_s, Make<forms::Form7>, u"mapping.html"_s},
    {u"Form8"_s, Make<forms::Form8>, u"branches.html"_s},
    {u"form9"_s, Make<forms::form9>, u"starting.html"_s},
    {u"Form11"_s, Make<forms::Form11>, u"gedcom.html"_s, u"report-menus"_s, u"report-buttons"_s},
    {u"Form12"_s, Make<forms::Form12>, u"gedcom.html"_s},
};

class DescribedWindowTest : public testing::TestWithParam<DescribedWindow>
{
protected:
    std::unique_ptr<Form> Window = GetParam().Make();
};

TEST_P(DescribedWindowTest, EveryMenuEntryIsDescribed_AndNoOther)
{
    EXPECT_THAT(PageNamed(GetParam().Page).Names(GetParam().Menus), UnorderedElementsAreArray(MenuEntries(*Window)));
}

TEST_P(DescribedWindowTest, EveryButtonIsDescribed_AndNoOther)
{
    EXPECT_THAT(PageNamed(GetParam().Page).Names(GetParam().Buttons), UnorderedElementsAreArray(Captions(*Window)));
}

TEST_P(DescribedWindowTest, EveryToolIsDescribed_AndNoOther)
{
    EXPECT_THAT(PageNamed(GetParam().PageOfTools).Names(GetParam().Tools),
                UnorderedElementsAreArray(ToolTips(*Window)));
}

INSTANTIATE_TEST_SUITE_P(Windows, DescribedWindowTest, testing::ValuesIn(windows),
                         [](const auto& row) { return row.param.Name.toStdString(); });

TEST(ManualWindows, NoDescriptionIsEmpty)
{
    for (const Page& page : AllPages())
        for (const QList<Term>& list : page.Terms)
            for (const Term& term : list)
                EXPECT_GT(term.Description.size(), 10) << page.Name.toStdString() << ": " << term.Name.toStdString();
}
} // namespace

} // namespace lineforge::manual
