#include "editor/EditorWindow.h"

#include "editor/EditorQuestions.h"
#include "editor/FindBar.h"
#include "editor/TextArea.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/MemoryFile.h"
#include "platform/files/WholeFile.h"
#include "printing/PrintServer.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QTextBlock>
#include <QVBoxLayout>

#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qint64 megabyte = 1024LL * 1024;

// Larger texts open, but slowly enough to ask first.
constexpr qint64 largeFile = 50 * megabyte;

constexpr int messageTime = 10'000; // milliseconds

// A text is printed from one page to another: of a list with gaps the toolkit prints all from the first to the last.
void LeaveOutPageList(const QPrintDialog& dialog)
{
    for (const QString& name : {u"pagesRadioButton"_s, u"pagesLineEdit"_s})
        if (auto* part = dialog.findChild<QWidget*>(name))
            part->hide();
}
} // namespace

EditorWindow::EditorWindow() : area_(new TextArea), findBar_(new FindBar(*area_))
{
    setObjectName(u"EditorWindow"_s);
    auto* middle = new QWidget;
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(area_);
    column->addWidget(findBar_);
    setCentralWidget(middle);
    BuildMenus();
    BuildStatusBar();
    connect(area_, &TextArea::modificationChanged, this, &QWidget::setWindowModified);
    connect(area_, &TextArea::cursorPositionChanged, this, &EditorWindow::ShowPosition);
    ShowFile();
    ShowPosition();
    area_->setFocus();
    resize(90 * area_->fontMetrics().averageCharWidth(), 36 * area_->fontMetrics().lineSpacing());
}

void EditorWindow::BuildStatusBar()
{
    const auto add = [this](const QString& name, const QString& toolTip) {
        auto* label = new QLabel;
        label->setObjectName(name);
        label->setToolTip(toolTip);
        label->setMargin(3);
        statusBar()->addPermanentWidget(label);
        return label;
    };
    position_ = add(u"Position"_s, u"Where the caret stands"_s);
    encoding_ = add(u"Encoding"_s, u"How the characters are written in the file"_s);
    ends_ = add(u"LineEnds"_s, u"How lines end in the file"_s);
}

void EditorWindow::ShowFile()
{
    // A name that holds the place of the mark itself would lose it.
    const QString name = file_.Name().replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(name + u"[*] - Lineforge Editor"_s);
    setWindowModified(area_->document()->isModified());
    encoding_->setText(NameOf(file_.Form().Encoding));
    encoding_->setAccessibleName(u"Encoding: "_s + encoding_->text());
    ends_->setText(NameOfEnds(file_.Form()));
    ends_->setAccessibleName(u"Line ends: "_s + ends_->text());
}

void EditorWindow::ShowPosition()
{
    const QTextCursor caret = area_->textCursor();
    position_->setText(u"Line "_s + QString::number(caret.blockNumber() + 1) + u", Column "_s +
                       QString::number(caret.positionInBlock() + 1));
}

void EditorWindow::Open(const QString& path)
{
    const QString file = file_.Resolve(path);
    const QFileInfo standing(file);
    if (standing.isDir()) {
        Tell(this, u"This is a directory, not a text file:\n"_s + file);
        return;
    }
    if (standing.size() > largeFile) {
        const QString megabytes = QString::number(standing.size() / megabyte);
        if (!AskYesNo(this, u"This file is very large ("_s + megabytes + u" MB) and may take long to open:\n"_s + file +
                                u"\n\nOpen it all the same?"_s))
            return;
    }
    try {
        std::optional<QString> text = file_.Load(file);
        if (!text) {
            Tell(this, u"This isn't a text file, so it can't be opened here:\n"_s + file);
            return;
        }
        area_->SetText(*std::move(text));
        ShowFile();
    } catch (const RuntimeError& error) {
        TellFailure(this, u"The file can't be read:"_s, file, error);
    }
}

void EditorWindow::OpenOrMake(const QString& path)
{
    const QString file = file_.Resolve(path);
    if (QFileInfo::exists(file))
        Open(file);
    else if (AskYesNo(this, u"There is no such file:\n"_s + file + u"\n\nMake a new one?"_s))
        WriteTo(file);
}

bool EditorWindow::MayLeaveText()
{
    if (!area_->document()->isModified())
        return true;
    switch (AskWhetherToSave(this, file_.Name())) {
    case Leaving::Save:
        return Save();
    case Leaving::Discard:
        return true;
    case Leaving::Cancel:
        break;
    }
    return false;
}

void EditorWindow::StartNew()
{
    if (!MayLeaveText())
        return;
    file_.StartNew();
    area_->SetText({});
    ShowFile();
}

void EditorWindow::AskAndOpen()
{
    if (!MayLeaveText())
        return;
    const QString directory = file_.Path().isEmpty() ? QDir::currentPath() : QFileInfo(file_.Path()).path();
    if (const auto path = AskForFile(this, directory))
        Open(*path);
}

bool EditorWindow::Save()
{
    if (file_.Path().isEmpty())
        return SaveAs();
    if (file_.HasChangedOnDisk() && !AskYesNo(this, u"Another program has changed this file since it was opened:\n"_s +
                                                        file_.Path() + u"\n\nOverwrite those changes?"_s))
        return false;
    return WriteTo(file_.Path());
}

bool EditorWindow::SaveAs()
{
    const auto path = AskForNewName(this, file_.Path());
    if (!path)
        return false;
    const QString file = file_.Resolve(*path);
    if (QFileInfo(file).isFile() && !AskYesNo(this, u"This file exists already:\n"_s + file + u"\n\nReplace it?"_s))
        return false;
    return WriteTo(file);
}

bool EditorWindow::WriteTo(const QString& path)
{
    const bool wasWindows1252 = file_.Form().Encoding == TextEncoding::Windows1252;
    try {
        file_.Save(path, area_->Text());
    } catch (const RuntimeError& error) {
        TellFailure(this, u"The text couldn't be saved as"_s, path, error);
        return false;
    }
    area_->document()->setModified(false);
    ShowFile();
    const bool hasBecomeUtf8 = wasWindows1252 && file_.Form().Encoding != TextEncoding::Windows1252;
    statusBar()->showMessage(hasBecomeUtf8 ? u"Saved as UTF-8, because Windows-1252 can't hold all of the text."_s
                                           : u"Saved."_s,
                             messageTime);
    return true;
}

void EditorWindow::Print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(file_.Name());
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(u"Print"_s);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, area_->textCursor().hasSelection());
    LeaveOutPageList(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (printer.outputFormat() == QPrinter::NativeFormat)
        PrintOnQueue(printer);
    else
        PrintToFile(printer);
}

void EditorWindow::PrintOnQueue(QPrinter& printer)
{
    CorrectServerOptions(printer);
    area_->print(&printer);
    if (!HasServerTakenJob())
        Tell(this, u"The text couldn't be printed."_s);
}

void EditorWindow::PrintToFile(QPrinter& printer)
{
    const QString file = printer.outputFileName();
    const MemoryFile paper;
    printer.setOutputFileName(paper.Path());
    area_->print(&printer);
    try {
        WriteWholeFile(file, paper.Bytes());
    } catch (const RuntimeError& error) {
        TellFailure(this, u"The text couldn't be printed to"_s, file, error);
    }
}

void EditorWindow::GoToLine()
{
    QInputDialog dialog(this);
    dialog.setWindowTitle(u"Go to Line"_s);
    dialog.setLabelText(u"Line number:"_s);
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setIntRange(1, area_->blockCount());
    dialog.setIntValue(area_->textCursor().blockNumber() + 1);
    if (dialog.exec() != QDialog::Accepted)
        return;
    area_->setTextCursor(QTextCursor(area_->document()->findBlockByNumber(dialog.intValue() - 1)));
    area_->centerCursor();
}

void EditorWindow::InsertTimeAndDate()
{
    area_->insertPlainText(QLocale::c().toString(QDateTime::currentDateTime(), u"HH:mm d MMMM yyyy"_s));
}

void EditorWindow::SetWordWrap(bool isOn)
{
    area_->setLineWrapMode(isOn ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void EditorWindow::ChooseFont()
{
    QFontDialog dialog(area_->font(), this);
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    if (dialog.exec() == QDialog::Accepted)
        area_->setFont(dialog.selectedFont());
}

void EditorWindow::ShowAbout()
{
    Tell(this, u"Lineforge Editor\n\nReads and writes the text files of a gallery. A file keeps its line ends and its "
               "encoding."_s);
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(MayLeaveText());
}

} // namespace lineforge
