#include "forms/Form5.h"

namespace lineforge::forms
{

Form5::Form5() : Form(u"Form5", {}, {11880, 8190})
{
    Image1.Load(0);
    Picture1.SpokenName = QStringLiteral("Sound player");
    Picture2.SpokenName = QStringLiteral("Film player");
    constexpr int filmHeight = 4650;
    MMControl2.ScreenHeight = filmHeight;
    for (PictureBox* panel : {&Picture1, &Picture2})
        panel->Visible = false;
    for (Label* word : {&Label1, &Label2, &Label3, &Label4, &Label5, &Label6, &Label7, &Label8, &Label9, &Label10,
                        &Label11, &Label12})
        word->Centred = true;
    for (MultimediaControl* player : {&MMControl1, &MMControl2}) {
        player->Visible = false;
        player->SpokenName = QStringLiteral("Player controls");
    }
}

std::unique_ptr<Image> Form5::Tile(Container& parent, const QString& name)
{
    auto tile = std::make_unique<Image>(parent, name, FirstTile);
    tile->Visible = false;
    tile->Draggable = true;
    return tile;
}

} // namespace lineforge::forms
