// SPDX-License-Identifier: MIT
// How do the window's fields show a value without treating it as user input?
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
/// A panel's grid, with space at the top for the title: the style sheet puts it inside the frame.
QGridLayout &gridIn(QGroupBox &panel);

/// Sets a widget's object name (for tests), accessible name (for screen readers) and tool tip.
void nameWidget(QWidget &widget, const QString &objectName, const QString &accessibleName,
                const QString &tip = QString());

// Each shows a value and emits no signal. Text being typed is replaced only by a new value.
void showIn(QAbstractButton &button, bool checked);
void showIn(QDoubleSpinBox &box, double value);
void showIn(QSlider &slider, double value); ///< the nearest slider position
void showIn(QComboBox &box, int index);
/// @param utcSeconds since 1970; a field with keyboard focus stays unchanged
void showIn(QDateTimeEdit &edit, double utcSeconds);
} // namespace virtualmount
