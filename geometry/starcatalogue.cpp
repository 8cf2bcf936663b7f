// SPDX-License-Identifier: MIT
// Which angles do the stars A, B and D make with the pole, and where are they in the template?
#include "geometry/starcatalogue.h"

#include <QDate>
#include <QDebug>
#include <QSettings>

StarCatalogue northCatalogue;
StarCatalogue southCatalogue;

namespace
{
constexpr int firstEpoch = 2016;
constexpr int lastEpoch = 2024;

/// Angles are stored as degrees times this.
constexpr double angleScale = 1e14;

QString epochDate(int epoch)
{
    return QString::number(epoch) + QStringLiteral("0523");
}
} // namespace

int catalogueEpoch(const QDate &today)
{
    int epoch = firstEpoch;
    while (epoch < lastEpoch && QDate(epoch, 11, 23) <= today)
        ++epoch;
    return epoch;
}

StarCatalogue readStarCatalogue(const QString &path, int epoch)
{
    const QSettings file(path, QSettings::IniFormat);
    const auto position = [&](const char *key) {
        return file.value(QString::fromLatin1(key)).toDouble();
    };
    const auto angle = [&](const char *name) {
        const QString key = QStringLiteral("%1_%2").arg(QLatin1String(name), epochDate(epoch));
        return file.value(key).toDouble() / angleScale;
    };

    StarCatalogue catalogue;
    catalogue.starAX = position("A_X_Mask");
    catalogue.starAY = position("A_Y_Mask");
    catalogue.starBX = position("B_X_Mask");
    catalogue.starBY = position("B_Y_Mask");
    catalogue.starDX = position("D_X_Mask");
    catalogue.starDY = position("D_Y_Mask");
    catalogue.angleBAP = angle("BAP");
    catalogue.angleABP = angle("ABP");
    catalogue.angleDBP = angle("DBP");
    return catalogue;
}

void loadStarCatalogues(const QDate &today)
{
    const int epoch = catalogueEpoch(today);
    qDebug("Loading star data at %s", qPrintable(epochDate(epoch)));
    southCatalogue = readStarCatalogue(QStringLiteral(":/starData/SStarPosData.ini"), epoch);
    northCatalogue = readStarCatalogue(QStringLiteral(":/starData/NStarPosData.ini"), epoch);
}
