#include "qt/dialogs/QtPrompts.h"

#include "platform/canvas/PictureBox.h"
#include "qt/dialogs/FileFilters.h"
#include "qt/dialogs/HelpWindow.h"
#include "qt/events/Popups.h"
#include "qt/machine/QtEventLoop.h"
#include "qt/machine/QtPrintSystem.h"
#include "qt/machine/ScreenPointer.h"
#include "qt/style/Desktop.h"
#include "qt/style/WindowInUse.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What is pasted may have several, of which a file of lines would make lines of its own.
QString InOneLine(QString text)
{
    static const QRegularExpression lineBreak(u"\\R"_s);
    return text.replace(lineBreak, u" "_s);
}

constexpr auto ok = QMessageBox::Ok;
constexpr auto cancel = QMessageBox::Cancel;
constexpr auto retry = QMessageBox::Retry;
constexpr auto yes = QMessageBox::Yes;
constexpr auto no = QMessageBox::No;

struct ButtonSet {
    QMessageBox::Icon Icon;
    QMessageBox::StandardButton First;
    QMessageBox::StandardButton Last;            // the one that Escape presses
    QMessageBox::StandardButton Default = First; // the one that Enter presses
};

ButtonSet SetOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Plain:
        break;
    case Buttons::Error:
        return {QMessageBox::Critical, ok, ok};
    case Buttons::ErrorYesNo:
        return {QMessageBox::Critical, yes, no};
    case Buttons::QuestionOkCancel:
        return {QMessageBox::Question, ok, cancel};
    case Buttons::QuestionYesNo:
        return {QMessageBox::Question, yes, no};
    case Buttons::Information:
        return {QMessageBox::Information, ok, ok};
    case Buttons::InformationOkCancel:
        return {QMessageBox::Information, ok, cancel};
    case Buttons::InformationYesNo:
        return {QMessageBox::Information, yes, no};
    case Buttons::InformationRetryCancel:
        return {QMessageBox::Information, retry, cancel};
    case Buttons::QuestionYesNoDefaultNo:
        return {QMessageBox::Question, yes, no, no};
    }
    return {QMessageBox::NoIcon, ok, ok};
}

Answer ToAnswer(int button)
{
    switch (button) {
    case yes:
        return Answer::Yes;
    case no:
        return Answer::No;
    case cancel:
        return Answer::Cancel;
    case retry:
        return Answer::Retry;
    default:
        return Answer::Ok;
    }
}

Colour FromQColor(const QColor& colour)
{
    return Rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
               static_cast<unsigned>(colour.blue()));
}

QFont ToQFont(const TextFont& font)
{
    QFont converted(font.Name);
    converted.setPointSizeF(font.Size);
    converted.setBold(font.Bold);
    converted.setItalic(font.Italic);
    return converted;
}

// The dialog finds a style by its name only, and where a family calls its plain letters otherwise (Roman) it would open
// on the first of its styles.
QFont NameStyle(QFont font)
{
    for (const QString& style : QFontDatabase::styles(font.family())) {
        const QFont styled = QFontDatabase::font(font.family(), style, font.pointSize());
        if (styled.bold() == font.bold() && styled.italic() == font.italic()) {
            font.setStyleName(style);
            break;
        }
    }
    return font;
}

// The dialog shows a stand-in for a family or a style that this machine lacks, and sizes without their fractions: what
// the user has left as it was shown stays what it was.
TextFont ChosenFont(const TextFont& present, const QFont& shown, const QFont& chosen)
{
    TextFont font = present;
    const bool isOtherFamily = chosen.family() != shown.family();
    if (isOtherFamily)
        font.Name = chosen.family();
    if (isOtherFamily || chosen.bold() != shown.bold() || chosen.italic() != shown.italic()) {
        font.Bold = chosen.bold();
        font.Italic = chosen.italic();
    }
    if (chosen.pointSizeF() != shown.pointSizeF())
        font.Size = chosen.pointSizeF();
    return font;
}

// The toolkit would break lines at half of the width that it allows a box, whatever the size of the letters.
void WidenFor(const QString& text, QMessageBox& box)
{
    const int screen = box.screen()->availableSize().width();
    const int widestBox = std::min(1000, std::max(screen - 480, screen / 2)); // no more than the toolkit allows
    const int besides = 2 * box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    label->setMinimumWidth(std::min(widestBox - besides, box.fontMetrics().size(0, text).width()));
}

// To a size in lines of text: the toolkit has its file box as large for all sizes of letters.
void Enlarge(QDialog& box, QSize lines)
{
    const QSize wanted = (lines * box.fontMetrics().lineSpacing()).expandedTo(box.size());
    box.resize(wanted.boundedTo(RoomOn(*box.screen())));
}
} // namespace

QtPrompts::QtPrompts(const QtEventLoop& loop, QtPrintSystem& printers, std::function<QString()> currentDirectory)
    : loop_(loop), printers_(printers), currentDirectory_(std::move(currentDirectory))
{
    FollowWindowsInUse();
}

QtPrompts::~QtPrompts() = default;

Answer QtPrompts::MsgBox(const QString& title, const QString& text, Buttons buttons)
{
    loop_.ThrowIfEnded();
    const ButtonSet set = SetOf(buttons);
    QMessageBox box(set.Icon, title, {}, set.First | set.Last, WindowInUse());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    WidenFor(text, box);
    box.setDefaultButton(set.Default);
    box.setEscapeButton(set.Last);
    return ToAnswer(Ask(box));
}

QString QtPrompts::InputBox(const QString& title, const QString& prompt)
{
    loop_.ThrowIfEnded();
    QInputDialog box(WindowInUse());
    box.setWindowTitle(title);
    box.setLabelText(prompt);
    for (QLabel* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    return Ask(box) == QDialog::Accepted ? InOneLine(box.textValue()) : QString();
}

std::optional<QString> QtPrompts::OpenFile(const FileQuestion& question)
{
    loop_.ThrowIfEnded();
    QFileDialog box(WindowInUse(), question.Title, currentDirectory_());
    box.setFileMode(QFileDialog::ExistingFile);
    return AskFile(box, question);
}

std::optional<QString> QtPrompts::SaveFile(const FileQuestion& question)
{
    loop_.ThrowIfEnded();
    QFileDialog box(WindowInUse(), question.Title, currentDirectory_());
    box.setAcceptMode(QFileDialog::AcceptSave);
    // Who asks knows what will be written under that name.
    box.setOption(QFileDialog::DontConfirmOverwrite);
    box.setDefaultSuffix(FirstEnding(question.Filter));
    return AskFile(box, question);
}

// What is popped up holds mouse and keys, and would stand between the user and the box.
int QtPrompts::Ask(QDialog& box) const
{
    ClosePopups();
    const ArrowMeanwhile arrow;
    const int answer = box.exec();
    loop_.ThrowIfEnded();
    return answer;
}

std::optional<QString> QtPrompts::AskFile(QFileDialog& box, const FileQuestion& question) const
{
    box.setOption(QFileDialog::DontUseNativeDialog);
    if (const QStringList filters = ToFileFilters(question.Filter); !filters.isEmpty())
        box.setNameFilters(filters);
    Enlarge(box, {52, 34});
    const bool isChosen = Ask(box) == QDialog::Accepted;
    const QStringList files = box.selectedFiles();
    if (!isChosen || files.isEmpty())
        return std::nullopt;
    return files.first();
}

std::optional<Colour> QtPrompts::PickColour(Colour present)
{
    loop_.ThrowIfEnded();
    QColorDialog box(ToQColor(present), WindowInUse());
    box.setOption(QColorDialog::DontUseNativeDialog);
    if (Ask(box) != QDialog::Accepted)
        return std::nullopt;
    return FromQColor(box.selectedColor());
}

std::optional<TextFont> QtPrompts::PickFont(const TextFont& present)
{
    loop_.ThrowIfEnded();
    QFontDialog box(NameStyle(ToQFont(present)), WindowInUse());
    box.setOption(QFontDialog::DontUseNativeDialog);
    const QFont shown = box.currentFont();
    if (Ask(box) != QDialog::Accepted)
        return std::nullopt;
    return ChosenFont(present, shown, box.selectedFont());
}

void QtPrompts::PickPrinter()
{
    loop_.ThrowIfEnded();
    ClosePopups();
    const ArrowMeanwhile arrow;
    printers_.Choose(WindowInUse());
    loop_.ThrowIfEnded();
}

void QtPrompts::ShowHelp(const QString& helpFile)
{
    loop_.ThrowIfEnded();
    if (!help_)
        help_ = std::make_unique<HelpWindow>();
    if (!help_->Open(helpFile)) {
        MsgBox(u"Lineforge"_s, u"The help file can't be found.\n"_s + helpFile, Buttons::Information);
        return;
    }
    ShowInFront(*help_);
}

} // namespace lineforge
