// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

// A key of the wall's controls that is a picture: with a tooltip, reached by Tab, pressed by the left
// mouse button, Space or Return. Main thread.
class PictureKey : public QLabel
{
    Q_OBJECT

public:
    explicit PictureKey(QWidget* parent);

protected:
    // The name in the resources, without ".png". A picture with a plate of its own gets no second
    // one while the mouse is over it.
    void setPicture(const QString& name, bool hasPlate = false);

    // What the key does, for the tooltip and for screen readers; asked again for each language.
    virtual QString hint() const = 0;
    void showHint();

    virtual void press() { }
    virtual void release() { } // wherever the mouse is then
    virtual void click() { } // released over the key
    virtual void hotChanged() { } // the mouse or the focus came or went

    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isDown_ = false;
};
