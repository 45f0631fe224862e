// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

// One row of the brand table: what differs between the names under which the program is shipped.
struct Brand
{
    int number;
    const char* title; // of the main window, a text of the context MainWindow
    const char* loginLogo; // resource
    QSize loginLogoSize; // pixels
    bool logoScaled; // drawn as a pixmap that keeps its ratio, not as a border image
    const char* buttonColor; // background of the login button
    const char* buttonBorder;
    const char* buttonHover;
    const char* buttonBusy;
    const char* buttonTextColor;
    const char* mainLogo; // resource, for the header of the main window
    QSize mainLogoSize;
    bool registerNow; // the word "here" of the register link reads "immediately."
};

// The row of `number`; brand 0 for a number without a row.
const Brand& brandOf(int number);
