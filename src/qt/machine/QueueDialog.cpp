#include "qt/machine/QueueDialog.h"

#include "printing/PrintServer.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinter>
#include <QRadioButton>

#include <algorithm>
#include <iterator>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString pageSet = u"page-set"_s;

QString ValueOf(const QString& option, const QStringList& options)
{
    const qsizetype name = options.indexOf(option);
    return options.value(name < 0 ? name : name + 1);
}

// One list in place of two: the former's values go before the latter's, but for what the dialog asks for itself.
QStringList Merged(const QStringList& former, QStringList latter)
{
    for (qsizetype name = 0; name + 1 < former.size(); name += 2) {
        if (former[name] == pageSet)
            continue;
        const qsizetype same = latter.indexOf(former[name]);
        if (same < 0)
            latter += former.mid(name, 2);
        else
            latter[same + 1] = former[name + 1];
    }
    return latter;
}

// The paper stands on the same page as the sheets' parts, and is shown again by the toolkit.
QList<QWidget*> InputsOf(const QDialog& properties)
{
    const QList<QWidget*> all = properties.findChildren<QWidget*>();
    const auto* page = properties.findChild<QWidget*>(u"pageSetup"_s);
    QList<QWidget*> inputs;
    std::ranges::copy_if(all, std::back_inserter(inputs), [page](const QWidget* widget) {
        const bool isInput = qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget);
        return isInput && (!page || !page->isAncestorOf(widget) || widget->objectName().startsWith(u"pagesPerSheet"));
    });
    return inputs;
}

QStringList TextsOf(const QDialog& properties)
{
    QStringList texts;
    for (const QWidget* input : InputsOf(properties)) {
        const auto* choice = qobject_cast<const QComboBox*>(input);
        texts += choice ? choice->currentText() : static_cast<const QLineEdit*>(input)->text();
    }
    return texts;
}

QLineEdit* PageListIn(const QPrintDialog& dialog)
{
    return dialog.findChild<QLineEdit*>(u"pagesLineEdit"_s);
}

QRadioButton* ChoiceOfPageListIn(const QPrintDialog& dialog)
{
    return dialog.findChild<QRadioButton*>(u"pagesRadioButton"_s);
}

QString QueueIn(const QPrintDialog& dialog)
{
    const auto* queues = dialog.findChild<QComboBox*>(u"printers"_s);
    return queues ? queues->currentText() : QString();
}
} // namespace

QueueDialog::QueueDialog(QPrintDialog& dialog, QueueSetup before) : dialog_(dialog), before_(std::move(before))
{
    ShowPageSet();
    FollowPageList();
    QCoreApplication::instance()->installEventFilter(this);
}

void QueueDialog::ShowPageSet()
{
    static const QStringList inTheirOrder{u"all"_s, u"odd"_s, u"even"_s};
    const qsizetype index = inTheirOrder.indexOf(ValueOf(pageSet, before_.Options));
    auto* sets = dialog_.findChild<QComboBox*>(u"pageSetCombo"_s);
    if (sets && index >= 0)
        sets->setCurrentIndex(static_cast<int>(index));
}

// The toolkit's dialog (of 6.4) looks for the pages at the printer, to which it hands the list only behind that, and so
// refuses any list.
void QueueDialog::FollowPageList()
{
    if (const auto* list = PageListIn(dialog_))
        connect(list, &QLineEdit::textChanged, this,
                [this](const QString& pages) { dialog_.printer()->setPageRanges(QPageRanges::fromString(pages)); });
}

void QueueDialog::ShowPageList()
{
    auto* list = PageListIn(dialog_);
    auto* choice = ChoiceOfPageListIn(dialog_);
    if (!list || !choice || before_.Pages.isEmpty() || QueueIn(dialog_) != before_.Queue)
        return;
    choice->setChecked(true);
    list->setText(before_.Pages);
}

QString QueueDialog::ListedPages() const
{
    const auto* list = PageListIn(dialog_);
    const auto* choice = ChoiceOfPageListIn(dialog_);
    return list && choice && choice->isChecked() ? list->text() : QString();
}

// The toolkit shows its dialog's pages when the dialog itself is shown, as the first to the last at that. A window of
// its own for each queue's properties is kept as long as the queue is chosen.
bool QueueDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &dialog_ && event->type() == QEvent::Show)
        ShowPageList();
    auto* window = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (window && window != properties_ && window->findChild<QWidget*>(u"pagesPerSheetCombo"_s)) {
        properties_ = window;
        if (QueueIn(dialog_) == before_.Queue)
            ShowProperties();
    }
    return QObject::eventFilter(watched, event);
}

void QueueDialog::ShowProperties()
{
    const QList<QWidget*> inputs = InputsOf(*properties_);
    if (inputs.size() != before_.Inputs.size())
        return; // the queue has got another driver
    for (qsizetype index = 0; index < inputs.size(); ++index) {
        if (auto* choice = qobject_cast<QComboBox*>(inputs[index]))
            choice->setCurrentText(before_.Inputs[index]);
        else
            static_cast<QLineEdit*>(inputs[index])->setText(before_.Inputs[index]);
    }
}

// Newer toolkits hand a list to the server alone, which would count what the job leaves out.
void QueueDialog::TakePageList(QPrinter& printer) const
{
    if (const QString pages = ListedPages(); !pages.isEmpty())
        printer.setPageRanges(QPageRanges::fromString(pages));
}

QueueSetup QueueDialog::Taken(QPrinter& printer) const
{
    TakePageList(printer);
    if (printer.outputFormat() != QPrinter::NativeFormat)
        return {};
    QueueSetup setup{printer.printerName(), ServerOptions(printer), ListedPages(), {}};
    if (properties_ && properties_->result() == QDialog::Accepted) {
        setup.Inputs = TextsOf(*properties_);
    } else if (setup.Queue == before_.Queue) {
        setup.Options = Merged(before_.Options, setup.Options);
        setup.Inputs = before_.Inputs;
        SetServerOptions(printer, setup.Options);
    }
    return setup;
}

} // namespace lineforge
