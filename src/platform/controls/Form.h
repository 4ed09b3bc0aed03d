#pragma once

#include "platform/controls/Controls.h"

#include <QImage>
#include <QProperty>
#include <QString>

#include <vector>

namespace lineforge
{

// A window: what stands in it and how it stands on the screen.
struct Form : Container {
    // `client` is the design size of the area below the menus.
    Form(QStringView name, QStringView caption, Size client);

    // Lets go of all that the window's controls hold open.
    void Release();

    // Puts the window in the middle of the screen, `up` twips higher.
    void Centre(Size screen, int up = 0);

    QString Name;
    QProperty<QString> Caption;
    QProperty<bool> Visible{false};
    QProperty<bool> Enabled{true};
    QProperty<int> Left{0}; // of the whole window on the screen, in twips
    QProperty<int> Top{0};
    QProperty<int> Width;
    QProperty<int> Height;
    Size Client;
    bool Topmost = false;
    bool Frameless = false;
    std::vector<MenuItem*> Menus;

    Event Load;                    // once, when the window has been made
    Event Unloading;               // it is about to go
    Event Click;                   // on the bare window
    Event CloseByFrame;            // unloads it; set by whoever owns the window
    Event ToFront;                 // brings it before the others; set by whoever shows the window
    std::function<QImage()> Grab;  // what it shows below its menus; set by whoever shows the window
    std::function<Size()> Measure; // the area below its menus in twips; set by whoever shows the window

    // What it shows below its menus, or would if it weren't hidden; null before it has been shown for the first time.
    QImage Picture() const { return Grab ? Grab() : QImage(); }

    // The area below its menus as it is on the screen; the whole window where nobody shows it.
    Size ScaleSize() const { return Measure ? Measure() : Size{Width, Height}; }

    // On the screen and before the other windows, also when it has been on the screen already.
    void Show()
    {
        Visible = true;
        Fire(ToFront);
    }
    void Hide() { Visible = false; }
};

} // namespace lineforge
