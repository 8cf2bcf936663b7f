// SPDX-License-Identifier: MIT
// Operates the window like a user to enter monitor mode.
#include "bench/monitoredrun.h"

#include "core/settingsfile.h"
#include "tools/practicesky.h"
#include "tools/tour/person.h"
#include "virtualcamera/skyfile.h"

#include <QLineEdit>
#include <QTest>

namespace
{
virtualsky::SkyState startingSky()
{
    virtualsky::SkyState sky = practiceSky(false);
    sky.boltAltitude = 0.8;
    sky.boltAzimuth = -0.9;
    sky.unthrottled = true; // until monitor mode is reached
    return sky;
}

/// Writes default settings, so that a new window starts with them.
std::string preparedSkyFile()
{
    writeSettings(settingsFilePath(), Settings());
    return virtualsky::skyFilePath();
}
} // namespace

MonitoredRun::MonitoredRun(int zoomPercent) : knobs(preparedSkyFile(), startingSky())
{
    window.resize(1280, 800);
    window.show();
    Person::Options how;
    how.zoomPercent = zoomPercent;
    Person person(window, session, knobs, how, 1);
    person.connectCamera();
    person.prepare();
    person.setExposure();
    person.confirmTemplate();
    person.findAxis();
    person.placePoleStar();
    person.startMonitor();
    // Short enough for 30 frames per second, with the same values as 200 ms at a gain of 50.
    typeInto("lineEditExpose", "20");
    typeInto("lineEditGain", "100");
    setUnthrottled(false);
}

MonitoredRun::~MonitoredRun()
{
    window.close();
}

void MonitoredRun::setUnthrottled(bool unthrottled)
{
    knobs.edit().unthrottled = unthrottled;
    knobs.write();
}

void MonitoredRun::wait(double seconds) const
{
    QTest::qWait(int(1000 * seconds));
}

/// Also works if the field's section is collapsed.
void MonitoredRun::typeInto(const char *lineEdit, const char *text)
{
    auto *const edit = window.findChild<QLineEdit *>(lineEdit);
    edit->setText(QString::fromLatin1(text));
    emit edit->returnPressed();
}
