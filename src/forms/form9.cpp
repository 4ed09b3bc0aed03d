#include "forms/form9.h"

namespace lineforge::forms
{

form9::form9() : Form(u"form9", {}, {7500, 4500})
{
    Frameless = true;
    Frame1.SpokenName = QStringLiteral("About Lineforge");
    imgLogo.SpokenName = QStringLiteral("Logo");
    lblCompanyProduct.Font.Size = 14;
    lblProductName.Font = {QStringLiteral("Arial"), 32, true};
    lblPlatform.Font.Size = 11;
    lblVersion.Font = {QStringLiteral("Arial"), 10, true};
}

} // namespace lineforge::forms
