#pragma once

#include <QTextDocument>
#include <QWidget>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lineforge
{

class TextArea;

// The strip below a text in which one looks for words and replaces them. A search that comes to an end of the text
// goes on at the other one; how it went is told in the strip.
class FindBar : public QWidget
{
public:
    explicit FindBar(TextArea& area, QWidget* parent = nullptr);

    // What is marked within one line is proposed.
    void ShowFind();
    void ShowReplace();

    // Without anything to look for they ask for it.
    void FindNext();
    void FindPrevious();

    // Replaces what is marked if it is what one looks for, and goes to the next.
    void Replace();
    // All in one step that can be undone.
    void ReplaceAll();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildFindRow(QGridLayout& grid);
    void BuildReplaceRow(QGridLayout& grid);
    void SetTabOrder();
    QLineEdit* AddField(QGridLayout& grid, int row, const QString& name, QLabel& label);
    QPushButton* AddButton(const QString& name, const QString& text, void (FindBar::*action)());

    void ShowReplaceRow(bool isShown);
    void Open();
    void CloseBar();
    void Find(QTextDocument::FindFlags direction);
    bool HasFoundMarked() const;
    QString Sought() const;
    QTextDocument::FindFlags Flags() const;
    QString NotFound() const;
    void Tell(const QString& message);

    TextArea& area_;
    QLineEdit* sought_ = nullptr;
    QLineEdit* replacement_ = nullptr;
    QLabel* replacementLabel_ = nullptr;
    QCheckBox* matchCase_ = nullptr;
    QLabel* message_ = nullptr;
    QWidget* replaceRow_ = nullptr;
};

} // namespace lineforge
