// SPDX-License-Identifier: MIT
// How does a test read the notices of a window that is operated by hand on the virtual camera?
#pragma once

#include "app/stylesheet.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/support/sessionwindow.h"
#include "tools/practicesky.h"
#include "tools/tour/person.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <memory>

/// Longer than the interval between two checks for a notice.
constexpr int oneLook = 700;
constexpr int noticeTimeout = 20000;

/// A shown window under the practice sky, with the mount's bolts off, and a person to operate it.
class NoticeWindow
{
public:
    explicit NoticeWindow(bool south, const Settings &settings = Settings(),
                          QSize size = QSize(1280, 800))
        : knobs(skyFile(), startSky(south))
    {
        options.south = south;
        writeSettings(settingsFilePath(), settings);
        window = std::make_unique<SessionWindow>();
        window->resize(size);
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get(), noticeTimeout))
            qFatal("the window does not appear");
    }
    ~NoticeWindow()
    {
        window->close();
        window.reset();
        QFile::remove(settingsFilePath());
    }

    Session &session() const { return window->ownSession; }

    template <typename T> T &child(const char *name) const
    {
        T *const found = window->findChild<T *>(name);
        if (!found)
            qFatal("there is no %s", name);
        return *found;
    }

    QString notice() const { return child<QLabel>("label_notice").text(); }
    bool comes(const QString &beginning) const
    {
        return QTest::qWaitFor([&] { return notice().startsWith(beginning); }, noticeTimeout);
    }
    bool goes() const
    {
        return QTest::qWaitFor([&] { return notice().isEmpty(); }, noticeTimeout);
    }
    /// The notice after the next check. Meanwhile frames come at the exposure's pace, so that
    /// waiting does not take a core.
    QString nextNotice()
    {
        setUnthrottled(false);
        QTest::qWait(oneLook);
        setUnthrottled(true);
        return notice();
    }
    /// Whether there is no notice, now and at the next check.
    bool staysAway()
    {
        const bool isAway = notice().isEmpty();
        return nextNotice().isEmpty() && isAway;
    }

    Person person(unsigned seed = 1)
    {
        return Person(*window, window->ownSession, knobs, options, seed);
    }
    void click(const char *button) const
    {
        QTest::mouseClick(&child<QPushButton>(button), Qt::LeftButton);
    }
    void doubleClick(QPointF place) const
    {
        const QPoint view = place.toPoint();
        const auto &picture = child<QLabel>("label_showImg");
        QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                           picture.mapTo(window.get(), view));
    }

    Knobs knobs;
    Person::Options options;
    std::unique_ptr<SessionWindow> window;

private:
    void setUnthrottled(bool isUnthrottled)
    {
        knobs.edit().unthrottled = isUnthrottled;
        knobs.write();
    }
    static std::string skyFile()
    {
        initialiseResources();
        applyStyleSheet(*qApp, ":/qss/default.qss");
        const QString path = QCoreApplication::applicationDirPath() + "/sky.ini";
        qputenv("QUORVANDEL_SKY", path.toUtf8());
        return path.toStdString();
    }
    static virtualsky::SkyState startSky(bool south)
    {
        virtualsky::SkyState sky = practiceSky(south);
        sky.boltAltitude = 0.5;
        sky.boltAzimuth = -0.4;
        hurry(sky);
        return sky;
    }
};
