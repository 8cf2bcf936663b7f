// SPDX-License-Identifier: MIT
// How do the window's fields show a value without taking it for something the user did?
#pragma once

#include <QString>

class QAbstractButton;
class QComboBox;
class QDateTimeEdit;
class QDoubleSpinBox;
class QGridLayout;
class QGroupBox;
class QSlider;
class QWidget;

namespace virtualmount
{
/// A panel's grid. The style sheet puts the title inside the frame: room for it is left on top.
QGridLayout &gridIn(QGroupBox &panel);

/// Names a widget for tests (object name), for screen readers, and for the mouse (tool tip).
void nameWidget(QWidget &widget, const QString &objectName, const QString &accessibleName,
                const QString &tip = QString());

// Each shows a value and emits nothing. What is being typed stays unless the value is a new one.
void showIn(QAbstractButton &button, bool checked);
void showIn(QDoubleSpinBox &box, double value);
void showIn(QSlider &slider, double value); ///< the nearest place on the slider
void showIn(QComboBox &box, int index);
/// @param utcSeconds since 1970; a field with the keyboard is left alone
void showIn(QDateTimeEdit &edit, double utcSeconds);
} // namespace virtualmount
