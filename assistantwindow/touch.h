// SPDX-License-Identifier: MIT
// Controls that a finger can use: number fields with large buttons, drawn icons.
#pragma once

#include "assistantwindow/theme.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QIcon>
#include <QWidget>

class QPushButton;

namespace assistantwindow
{
/// The least width and height of every control, pixels.
inline constexpr int touchSize = 44;

/// A number with buttons for coarse and fine steps on both sides.
class BigSpin : public QWidget
{
public:
    struct Steps {
        double coarse, fine;
    };
    /// @param field of a type of its own; null: a plain one
    BigSpin(const QString &objectName, Steps steps, QDoubleSpinBox *field = nullptr);
    QDoubleSpinBox &field() const { return *spin; }
    /// What a screen reader calls the field and its buttons.
    void setName(const QString &name);

private:
    QPushButton *stepButton(const QString &text, double step);

    QDoubleSpinBox *spin;
    QList<QPushButton *> buttons;
};

/// A check box of which the whole height takes a press, not the box and the text's line alone.
class BigCheck : public QCheckBox
{
public:
    explicit BigCheck(const QString &objectName);

protected:
    bool hitButton(const QPoint &place) const override;
};

enum class Glyph { Expand, Settings, Report, Back, Close };

/// A button's icon in the theme's colour.
QIcon glyphIcon(Glyph glyph, const Theme &theme);
} // namespace assistantwindow
