#pragma once

#include "platform/Controls.h"

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

    Event Load;                   // once, when the window has been made
    Event Unloading;              // it is about to go
    Event Click;                  // on the bare window
    Event CloseByFrame;           // unloads it; set by whoever owns the window
    Event ToFront;                // brings it before the others; set by whoever shows the window
    std::function<QImage()> Grab; // what it shows below its menus; set by whoever shows the window

    // What it shows below its menus; null while it isn't shown.
    QImage Picture() const { return Grab ? Grab() : QImage(); }

    // On the screen and before the other windows, also when it has been on the screen already.
    void Show()
    {
        Visible = true;
        Fire(ToFront);
    }
    void Hide() { Visible = false; }
};

} // namespace lineforge
