#include "editor/EditorTest.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

EditorTest::EditorTest()
{
    Editor.show();
    QApplication::setActiveWindow(&Editor);
    Area().setFocus();
}

EditorTest::~EditorTest()
{
    // A text that a test leaves changed must not ask.
    Area().document()->setModified(false);
}

void EditorTest::Choose(const QString& command)
{
    Find<QAction>(command).trigger();
}

void EditorTest::Type(const QString& text)
{
    const QStringList lines = text.split(u'\n');
    QTest::keyClicks(&Area(), lines.first());
    for (const QString& line : lines.sliced(1)) {
        QTest::keyClick(&Area(), Qt::Key_Return);
        QTest::keyClicks(&Area(), line);
    }
}

void EditorTest::ClickButton(const QString& name)
{
    QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton);
}

QString EditorTest::Shown(const QString& label)
{
    return Find<QLabel>(label).text();
}

QString EditorTest::OpenFile(QStringView name, const QByteArray& bytes)
{
    const QString path = Home.WriteFile(name, bytes);
    Editor.Open(path);
    return path;
}

std::function<void(QDialog&)> EditorTest::Answering(QMessageBox::StandardButton button, const QString& words)
{
    return [=](QDialog& dialog) {
        QMessageBox& box = AsMessageBox(dialog);
        EXPECT_TRUE(box.text().contains(words)) << qUtf8Printable(box.text());
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        ASSERT_NE(box.button(button), nullptr);
        Press(box, button);
    };
}

std::function<void(QDialog&)> EditorTest::Naming(const QString& path)
{
    return [path](QDialog& dialog) {
        auto& box = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_TRUE(box.testOption(QFileDialog::DontUseNativeDialog));
        box.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
        PressKey(dialog, Qt::Key_Return);
    };
}

} // namespace lineforge
