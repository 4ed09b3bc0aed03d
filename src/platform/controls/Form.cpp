#include "platform/controls/Form.h"

namespace lineforge
{

namespace
{
void ReleaseAll(const Container& container)
{
    for (Control* control : container.Controls()) {
        control->Release();
        if (const auto* inner = dynamic_cast<Container*>(control))
            ReleaseAll(*inner);
    }
}
} // namespace

Form::Form(QStringView name, QStringView caption, Size client)
    : Name(name.toString()), Caption(caption.toString()), Width(client.Width), Height(client.Height), Client(client)
{
}

void Form::Release()
{
    ReleaseAll(*this);
}

void Form::Centre(Size screen, int up)
{
    Left = (screen.Width - Width) / 2;
    Top = (screen.Height - Height) / 2 - up;
}

} // namespace lineforge
