#include "editor/EditorQuestions.h"

#include "platform/base/RuntimeError.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString title = u"Lineforge Editor"_s;

QMessageBox::StandardButton Ask(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton byDefault)
{
    QMessageBox box(icon, title, {}, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setDefaultButton(byDefault);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

// The numbers are few, and what they mean depends on what stands at the path.
QString ReasonOf(const RuntimeError& error, const QString& path)
{
    const QFileInfo standing(path);
    switch (error.Number) {
    case ErrorNumber::FileNotFound:
        return standing.exists() ? u"It is no ordinary file."_s : u"There is no such file."_s;
    case ErrorNumber::DiskFull:
        return u"The disk is full."_s;
    case ErrorNumber::PermissionDenied:
        return u"You don't have the permission for that."_s;
    case ErrorNumber::PathNotFound:
        return u"There is no such directory."_s;
    case ErrorNumber::PathFileAccess:
        if (standing.isDir())
            return u"A directory has that name."_s;
        return standing.exists() && !standing.permission(QFileDevice::WriteOwner) ? u"The file is read-only."_s
                                                                                  : u"Its directory is read-only."_s;
    default:
        return error.Text + u'.';
    }
}

std::optional<QString> ChosenBy(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setNameFilters({u"Text files (*.txt *.TXT)"_s, u"All files (*)"_s});
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}
} // namespace

Leaving AskWhetherToSave(QWidget* parent, const QString& name)
{
    const QString text = u"The text of "_s + name + u" has been changed.\n\nSave the changes?"_s;
    switch (Ask(parent, QMessageBox::Question, text, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                QMessageBox::Save)) {
    case QMessageBox::Save:
        return Leaving::Save;
    case QMessageBox::Discard:
        return Leaving::Discard;
    default:
        return Leaving::Cancel;
    }
}

bool AskYesNo(QWidget* parent, const QString& text)
{
    return Ask(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

void Tell(QWidget* parent, const QString& text)
{
    Ask(parent, QMessageBox::Information, text, QMessageBox::Ok, QMessageBox::Ok);
}

void TellFailure(QWidget* parent, const QString& what, const QString& path, const RuntimeError& error)
{
    const QString text = what + u'\n' + path + u"\n\n" + ReasonOf(error, path);
    Ask(parent, QMessageBox::Critical, text, QMessageBox::Ok, QMessageBox::Ok);
}

std::optional<QString> AskForFile(QWidget* parent, const QString& directory)
{
    QFileDialog dialog(parent, u"Open"_s, directory);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return ChosenBy(dialog);
}

std::optional<QString> AskForNewName(QWidget* parent, const QString& present)
{
    const QFileInfo file(present);
    QFileDialog dialog(parent, u"Save As"_s, present.isEmpty() ? QDir::currentPath() : file.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // Which file stands there already is a question of the caller's, who takes names without regard to case.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (present.isEmpty())
        dialog.setDefaultSuffix(u"txt"_s);
    else
        dialog.selectFile(file.fileName());
    return ChosenBy(dialog);
}

} // namespace lineforge
