// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

// A combo box of the login window: the user name, typed or picked, or the language. A box that
// cannot be edited shows its text centred. What is typed never becomes an item, and nothing is
// completed, since a completed name would bring another account's password; nor does the mouse
// wheel change account or language in passing. Main thread.
class LoginComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit LoginComboBox(QWidget* parent = nullptr);

    // Makes the name editable, without completion and without a context menu.
    void makeEditable();

    // The list is as wide as the box, or as its widest item, and stands centred on the box.
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
