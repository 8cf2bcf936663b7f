// SPDX-License-Identifier: MIT
// Panels, and fields that the program sets.
#include "virtualmount/fields.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <cmath>

namespace virtualmount
{
QGridLayout &gridIn(QGroupBox &panel)
{
    auto *const grid = new QGridLayout(&panel);
    grid->setContentsMargins(8, panel.title().isEmpty() ? 6 : 24, 8, 5);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    return *grid;
}

void nameWidget(QWidget &widget, const QString &objectName, const QString &accessibleName,
                const QString &tip)
{
    widget.setObjectName(objectName);
    widget.setAccessibleName(accessibleName);
    widget.setToolTip(tip);
}

void showIn(QAbstractButton &button, bool checked)
{
    const QSignalBlocker blocker(button);
    button.setChecked(checked);
}

void showIn(QDoubleSpinBox &box, double value)
{
    if (std::abs(box.value() - value) <= 0.5 * std::pow(10.0, -box.decimals()))
        return;
    const QSignalBlocker blocker(box);
    box.setValue(value);
}

void showIn(QSlider &slider, double value)
{
    const QSignalBlocker blocker(slider);
    const double place = std::clamp(value, double(slider.minimum()), double(slider.maximum()));
    if (!slider.isSliderDown())
        slider.setValue(int(std::lround(place)));
}

void showIn(QComboBox &box, int index)
{
    const QSignalBlocker blocker(box);
    box.setCurrentIndex(index);
}

void showIn(QDateTimeEdit &edit, double utcSeconds)
{
    const auto *const text = edit.findChild<QLineEdit *>();
    if (edit.hasFocus() && text && text->isModified())
        return;
    const QSignalBlocker blocker(edit);
    edit.setDateTime(QDateTime::fromSecsSinceEpoch(qint64(std::floor(utcSeconds)), Qt::UTC));
}
} // namespace virtualmount
