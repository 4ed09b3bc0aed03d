#pragma once

#include "platform/controls/Form.h"

namespace lineforge::forms
{

// The splash at start-up.
struct form9 : Form {
    form9();

    Frame Frame1{*this, u"Frame1", {150, 90, 7200, 4320}};
    Image imgLogo{Frame1, u"imgLogo", {240, 540, 1815, 1815}};
    Label lblCompanyProduct{Frame1, u"lblCompanyProduct", {2355, 390, 4600, 420}, u"Tarnwick Technology"};
    Label lblProductName{Frame1, u"lblProductName", {2355, 810, 4600, 900}, u"Lineforge"};
    Label lblPlatform{
        Frame1, u"lblPlatform", {2355, 1770, 4600, 600}, u"Genealogical Database for Amateurs and Professionals"};
    Label lblVersion{Frame1, u"lblVersion", {2355, 2400, 4600, 285}, u"Version 1.2"};
    Label lblCopyright{Frame1, u"lblCopyright", {2355, 2745, 2400, 255}, u"© Tarnwick Technology"};
    Label lblCompany{Frame1, u"lblCompany", {4755, 2745, 2200, 255}, u"Tarnwick Technology"};
    Label lblWarning{Frame1,
                     u"lblWarning",
                     {240, 3120, 6720, 570},
                     u"Disclaimer: While every endeavour is made to ensure that this product will operate trouble "
                     u"free, the user accepts all responsibilities for its use. "};
    CheckBox Check1{Frame1, u"Check1", {240, 3840, 6720, 315}, u"Don't show this screen again."};
    MultimediaControl MMControl1{*this, u"MMControl1"}; // the tune
};

} // namespace lineforge::forms
