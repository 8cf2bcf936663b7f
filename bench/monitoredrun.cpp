// SPDX-License-Identifier: MIT
// Leads the window into monitor mode as a person does.
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

/// A new window finds the default settings.
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
    // Short enough for 30 frames a second, with as many counts as at 200 ms and a gain of 50.
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

/// Also where the field's section is folded.
void MonitoredRun::typeInto(const char *lineEdit, const char *text)
{
    auto *const edit = window.findChild<QLineEdit *>(lineEdit);
    edit->setText(QString::fromLatin1(text));
    emit edit->returnPressed();
}
