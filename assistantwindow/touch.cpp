// SPDX-License-Identifier: MIT
// Builds number fields with large buttons, and draws the icons.
#include "assistantwindow/touch.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPushButton>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
BigSpin::BigSpin(const QString &objectName, Steps steps, QDoubleSpinBox *field)
    : spin(field ? field : new QDoubleSpinBox)
{
    spin->setObjectName(objectName);
    spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
    spin->setAlignment(Qt::AlignCenter);
    spin->setMinimumSize(96, touchSize);
    spin->setContextMenuPolicy(Qt::NoContextMenu); // its entries are too small for a finger
    spin->setSingleStep(steps.coarse);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(stepButton(QStringLiteral("−"), -steps.coarse));
    if (steps.fine > 0.0)
        row->addWidget(stepButton(QStringLiteral("‹"), -steps.fine));
    row->addWidget(spin, 1);
    if (steps.fine > 0.0)
        row->addWidget(stepButton(QStringLiteral("›"), steps.fine));
    row->addWidget(stepButton(QStringLiteral("+"), steps.coarse));
    setTabOrder(buttons.first(), spin);
}

QPushButton *BigSpin::stepButton(const QString &text, double step)
{
    auto *const button = new QPushButton(text, this);
    button->setObjectName(spin->objectName() + QStringLiteral("_step%1").arg(buttons.size()));
    button->setProperty("step", true);
    button->setFixedSize(touchSize, touchSize);
    button->setAutoRepeat(true);
    connect(button, &QPushButton::clicked, spin, [this, step] {
        // A field without a number yet begins at 0.
        const bool isEmpty =
            !spin->specialValueText().isEmpty() && spin->value() <= spin->minimum();
        const double least =
            spin->specialValueText().isEmpty() ? spin->minimum() : -spin->maximum();
        spin->setValue(isEmpty ? 0.0 : std::max(least, spin->value() + step));
    });
    button->setProperty("step_by", step);
    buttons.append(button);
    return button;
}

void BigSpin::setName(const QString &name)
{
    spin->setAccessibleName(name);
    for (QPushButton *const button : qAsConst(buttons)) {
        const double step = button->property("step_by").toDouble();
        button->setAccessibleName(name + QStringLiteral(" %1").arg(step > 0.0 ? u'+' : u'−') +
                                  QLocale().toString(std::abs(step)));
    }
}

BigCheck::BigCheck(const QString &objectName)
{
    setObjectName(objectName);
    setMinimumHeight(touchSize);
}

bool BigCheck::hitButton(const QPoint &place) const
{
    return QRect(0, 0, std::min(width(), sizeHint().width()), height()).contains(place);
}

namespace
{
void drawExpand(QPainter &painter)
{
    for (int quarter = 0; quarter < 4; ++quarter) {
        painter.drawPolyline(QPolygonF({{-8, -3}, {-8, -8}, {-3, -8}}));
        painter.rotate(90.0);
    }
}

/// Three sliders.
void drawSettings(QPainter &painter, const QColor &colour)
{
    const double knobs[] = {3.0, -4.0, 5.0};
    for (int i = 0; i < 3; ++i) {
        const double y = (i - 1) * 6.5;
        painter.drawLine(QPointF(-9, y), QPointF(9, y));
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(knobs[i], y), 2.2, 2.2);
    }
}

void drawReport(QPainter &painter)
{
    painter.drawRoundedRect(QRectF(-7, -9, 14, 18), 1.5, 1.5);
    for (const double y : {-4.0, 0.0, 4.0})
        painter.drawLine(QPointF(-3.5, y), QPointF(3.5, y));
}
} // namespace

QIcon glyphIcon(Glyph glyph, const Theme &theme)
{
    QPixmap pixmap(48, 48);
    pixmap.setDevicePixelRatio(2.0);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(12, 12);
    painter.setPen(QPen(theme.text, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (glyph) {
    case Glyph::Expand:
        drawExpand(painter);
        break;
    case Glyph::Settings:
        drawSettings(painter, theme.text);
        break;
    case Glyph::Report:
        drawReport(painter);
        break;
    case Glyph::Back:
        painter.drawPolyline(QPolygonF({{3, -8}, {-5, 0}, {3, 8}}));
        break;
    case Glyph::Close:
        painter.drawLine(QPointF(-6, -6), QPointF(6, 6));
        painter.drawLine(QPointF(-6, 6), QPointF(6, -6));
        break;
    }
    return QIcon(pixmap);
}
} // namespace assistantwindow
