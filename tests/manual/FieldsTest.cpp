#include "forms/Form3.h"
#include "manual/Pages.h"

#include <cstdlib>
#include <gmock/gmock.h>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;
using testing::UnorderedElementsAreArray;

namespace
{
// The nearest one at its left, about as high.
QString LabelOf(const Form& form, const TextBox& box)
{
    const Label* nearest = nullptr;
    for (const Control* control : form.Controls())
        if (const auto* label = dynamic_cast<const Label*>(control))
            if (std::abs(label->Top - box.Top) < 100 && label->Left < box.Left &&
                (!nearest || label->Left > nearest->Left))
                nearest = label;
    return nearest ? nearest->Caption.value() : QString();
}

class ManualFields : public testing::Test
{
protected:
    template <class Row>
    QList<QStringList> RowsOfBoxes(Row row) const
    {
        QList<QStringList> rows;
        for (const Control* control : Form.Controls())
            if (const auto* box = dynamic_cast<const TextBox*>(control))
                rows.append(row(*box));
        return rows;
    }

    forms::Form3 Form;
};

TEST_F(ManualFields, LengthsAreTheRecordFormsOwn)
{
    const auto expected = RowsOfBoxes([this](const TextBox& box) -> QStringList {
        return {LabelOf(Form, box), box.MaxLength == 0 ? u"any number"_s : QString::number(box.MaxLength)};
    });
    EXPECT_THAT(PageNamed(u"limits.html"_s).Rows.value(u"field-lengths"_s), UnorderedElementsAreArray(expected));
}

TEST_F(ManualFields, KeysAreTheRecordFormsOwn)
{
    auto expected = RowsOfBoxes([this](const TextBox& box) -> QStringList {
        return {u"Alt+"_s + QChar(box.AccessKey), LabelOf(Form, box)};
    });
    for (const Button* button : {&Form.Command1, &Form.Command2})
        expected.append({u"Alt+"_s + QChar(button->AccessKey), u"the button "_s + button->Caption.value()});
    EXPECT_THAT(PageNamed(u"keyboard.html"_s).Rows.value(u"record-keys"_s), UnorderedElementsAreArray(expected));
}
} // namespace

} // namespace lineforge::manual
