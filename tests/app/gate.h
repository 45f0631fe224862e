// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/logincombobox.h"
#include "app/windowlogin.h"
#include "store/localstore.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

// A login window on the screen, and its parts by their names in the form.
class Gate
{
public:
    Gate()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
    }

    template <typename Part = QWidget>
    Part* part(const char* name) const
    {
        auto* found = window.findChild<Part*>(QLatin1String(name));
        Q_ASSERT(found != nullptr);
        return found;
    }

    LoginComboBox* user() const { return part<LoginComboBox>("comboBox_user"); }
    LoginComboBox* language() const { return part<LoginComboBox>("comboBox_language"); }
    QLineEdit* password() const { return part<QLineEdit>("lineEdit_password"); }
    QString message() const { return part<QLabel>("label_message")->text(); }

    void press(const char* name) const { QTest::mousePress(part(name), Qt::LeftButton); }

    void focus(QWidget* widget) const
    {
        QTRY_VERIFY(window.isActiveWindow());
        widget->setFocus();
        QTRY_VERIFY(widget->hasFocus());
    }

    WindowLogin window;
};

// Forgets every remembered login.
inline void clearSettings()
{
    QFile::remove(LocalStore::instance()->currentPath());
    QVERIFY(LocalStore::instance()->loadLogins().isEmpty());
}

// The picture that a label shows is the resource.
inline bool shows(const QLabel* label, const char* name)
{
    const QPixmap wanted(QStringLiteral(":/main/images/btnImg/%1.png").arg(QLatin1String(name)));
    return !wanted.isNull() && label->pixmap(Qt::ReturnByValue).toImage() == wanted.toImage();
}
