#pragma once

#include <QImage>
#include <QWidget>

#include <functional>
#include <vector>

class QAbstractButton;
class QLabel;

namespace lineforge
{

// The screen of a film, black around it, in the film's own proportions.
class FilmView : public QWidget
{
public:
    explicit FilmView(QWidget* parent);
    void Show(const QImage& picture);
    // What has run without a picture says so. Nothing has that has just been opened or closed.
    void SetRun(bool hasRun);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Describe();
    bool LacksPicture() const { return hasRun_ && picture_.isNull(); }

    QImage picture_;
    bool hasRun_ = false;
};

// A player: its film above, its five buttons below, and between them the time where there is room for it.
class PlayerView : public QWidget
{
public:
    // The upper `screenHeight` pixels show the film. Its parts are called `name` + "Screen", "Time", "Rewind", "Play",
    // "Pause", "Step", "Stop".
    PlayerView(QWidget* parent, const QString& name, int screenHeight);

    // Told the command of a button that has been pressed.
    std::function<void(QStringView command)> Pressed;

    void SetUsable(bool usable);
    void ShowFilm(const QImage& picture);
    // In milliseconds; nothing for what has no length.
    void ShowTime(int position, int length);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddButtons(const QString& name);

    int screenHeight_;
    FilmView* film_ = nullptr;
    QLabel* time_ = nullptr;
    std::vector<QAbstractButton*> buttons_;
};

// "0:03 / 0:12".
QString PlayingTime(int position, int length);

} // namespace lineforge
