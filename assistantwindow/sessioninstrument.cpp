// SPDX-License-Identifier: MIT
// Passes the window's wishes to the session, and keeps the history for the report.
#include "assistantwindow/sessioninstrument.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSaveFile>
#include <algorithm>

namespace assistantwindow
{
namespace
{
constexpr std::size_t mostEntries = 8 * 3600; // one a second
/// Of the sky, radians an hour: 2 pi in a sidereal day.
constexpr double skyTurn = 2.0 * 3.14159265358979323846 / 23.9344696;

QByteArray partText(const std::optional<recognition::Measured> &part)
{
    if (!part)
        return ",";
    return QByteArray::number(part->arcseconds, 'f', 2) + ',' +
           QByteArray::number(part->sigma, 'f', 2);
}
} // namespace

double driftPerHour(double totalArcseconds)
{
    return totalArcseconds * skyTurn;
}

SessionInstrument::SessionInstrument(const assistant::Settings &settings) : session(settings) {}

std::vector<CameraEntry> SessionInstrument::cameras()
{
    session.findCameras();
    std::vector<CameraEntry> entriesFound;
    for (const std::string &id : session.link().cameras)
        entriesFound.push_back({QString::fromStdString(id), QString::fromStdString(id)});
    return entriesFound;
}

void SessionInstrument::connectCamera(const QString &id)
{
    entries.clear();
    beganAt.reset();
    last.reset();
    session.connectCamera(id.toStdString());
}

void SessionInstrument::disconnectCamera()
{
    session.disconnectCamera();
}

bool SessionInstrument::isConnected() const
{
    return session.isConnecting();
}

Range SessionInstrument::exposureRange() const
{
    return {1000.0, 500000.0};
}

void SessionInstrument::setExposure(double microseconds)
{
    session.setExposure(microseconds);
}

void SessionInstrument::setAutomaticExposure(bool on)
{
    session.setAutomaticExposure(on);
}

void SessionInstrument::startAgain()
{
    entries.clear();
    beganAt.reset();
    last.reset();
    session.startAgain();
}

void SessionInstrument::apply(const assistant::Settings &settings)
{
    session.setSettings(settings);
}

Snapshot SessionInstrument::latest()
{
    assistant::Snapshot now = session.latest();
    remember(now.status);
    return {std::move(now.status), std::move(now.picture), session.link().gain};
}

void SessionInstrument::remember(const assistant::Status &status)
{
    if (status.frame > 0 && !beganAt)
        beganAt = status.utcSeconds;
    if (!status.error)
        return;
    const bool isNew = entries.empty() || status.utcSeconds >= entries.back().utcSeconds + 1.0;
    if (isNew && entries.size() < mostEntries)
        entries.push_back({status.utcSeconds, *status.error});
    last = status;
}

std::optional<ReportFigures> SessionInstrument::report()
{
    if (!last)
        return {};
    ReportFigures figures;
    figures.before = last->firstError ? last->firstError : last->error;
    figures.after = last->error;
    figures.seconds = std::max(0.0, last->utcSeconds - beganAt.value_or(last->utcSeconds));
    figures.driftArcsecondsPerHour = driftPerHour(last->error->total.arcseconds);
    figures.rotationArcsecondsPerHour = figures.driftArcsecondsPerHour;
    return figures;
}

QString SessionInstrument::saveCsv(const QString &file)
{
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return out.errorString();
    out.write("utc,total_arcsec,total_sigma,altitude_arcsec,altitude_sigma,azimuth_arcsec,"
              "azimuth_sigma\n");
    for (const Entry &entry : entries) {
        const qint64 milliseconds = qint64(entry.utcSeconds * 1000.0);
        out.write(QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC)
                      .toString(Qt::ISODateWithMs)
                      .toLatin1() +
                  ',' + partText(entry.error.total) + ',' + partText(entry.error.altitude) + ',' +
                  partText(entry.error.azimuth) + '\n');
    }
    return out.commit() ? QString() : out.errorString();
}

bool SessionInstrument::close(int milliseconds)
{
    return session.close(milliseconds);
}
} // namespace assistantwindow
