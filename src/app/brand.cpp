// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/brand.h"

#include <QCoreApplication>

namespace {

const Brand brands[] = {
    {0, QT_TRANSLATE_NOOP("MainWindow", "KELO Network Video Monitor"),
        ":/logo/kelo/images/logo/login_kelo.png", {140, 44}, false, "rgb(217, 77, 86)",
        "rgb(217, 77, 86)", "rgb(197, 63, 74)", "rgb(176, 53, 63)", "#FFFFFF",
        ":/logo/kelo/images/logo/main_kelo.png", {88, 28}, false},
    {149, QT_TRANSLATE_NOOP("MainWindow", "BRISEN HD Video Monitor"),
        ":/login/149/images/logo/BRISEN-HD-logo.png", {150, 60}, false, "#EE7600", "#EE7600",
        "#DB6C00", "#C96400", "#2A1500", ":/login/149/images/logo/main_brisen.png", {150, 60},
        false},
    {150, QT_TRANSLATE_NOOP("MainWindow", "Fenrad Network Video Monitor"),
        ":/login/150/images/logo/fenrad_login.png", {120, 29}, false, "#4d2875", "#4d2875",
        "#40205F", "#331A4C", "#FFFFFF", ":/login/150/images/logo/main_fenrad.png", {124, 30},
        true},
    {151, QT_TRANSLATE_NOOP("MainWindow", "Network Video Monitor"),
        ":/login/151/images/logo/orva_orva.png", {80, 80}, true, "#307dc1", "#307dc1", "#2A6CAB",
        "#235B91", "#FFFFFF", ":/login/151/images/logo/main_orva.png", {28, 28}, false},
};

} // namespace

const Brand& brandOf(int number)
{
    for (const Brand& brand : brands) {
        if (brand.number == number)
            return brand;
    }
    return brands[0];
}
