// SPDX-License-Identifier: MIT
// Which angle did the user type for a latitude or a longitude?
#pragma once

#include <QDoubleSpinBox>
#include <QString>
#include <optional>

namespace assistantwindow
{
/// The letters of the two sides: N and S, or E and W.
struct Sides {
    QChar positive, negative;
};

/// "-34.5", "34,5 S", "S34.5", "34° 30′ 18″ S" as degrees; nothing for what is no such angle.
/// @param most degrees
std::optional<double> typedAngle(const QString &text, Sides sides, double most);

/// A field that takes all of these, shows signed degrees, and selects its text when it gets the
/// focus, so that typing replaces it.
class SiteField : public QDoubleSpinBox
{
public:
    SiteField(Sides sides, double most);
    QValidator::State validate(QString &text, int &position) const override;
    double valueFromText(const QString &text) const override;

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    Sides sides;
    double most;
};
} // namespace assistantwindow
