#pragma once

#include "editor/EditorWindow.h"
#include "editor/TextArea.h"
#include "qt/Dialogs.h"
#include "support/NamedChild.h"
#include "support/Printing.h"
#include "support/TemporaryHome.h"

#include <gmock/gmock.h>

namespace lineforge
{

// An editor on a screen that nobody sees, its files in a home of its own.
class EditorTest : public testing::Test
{
protected:
    EditorTest();
    ~EditorTest() override;

    template <class Widget>
    Widget& Find(const QString& name)
    {
        auto* found = NamedChild<Widget>(Editor, name);
        if (!found)
            throw std::runtime_error("nothing of the name " + name.toStdString());
        return *found;
    }

    // Runs a menu entry. One that is greyed does nothing.
    void Choose(const QString& command);
    // ASCII only; a line feed is the Enter key.
    void Type(const QString& text);
    void ClickButton(const QString& name);
    QString Shown(const QString& label);

    // Writes a file and opens it.
    QString OpenFile(QStringView name, const QByteArray& bytes);

    // What the running action asks or tells next is answered with that button; the text must contain the words.
    static std::function<void(QDialog&)> Answering(QMessageBox::StandardButton button, const QString& words);
    // The file dialog that comes next is given that name.
    static std::function<void(QDialog&)> Naming(const QString& path);

    TextArea& Area() { return Find<TextArea>(QStringLiteral("Text")); }
    bool IsModified() const { return Editor.isWindowModified(); }

    TemporaryHome Home;
    EditorWindow Editor;
};

} // namespace lineforge
