// SPDX-License-Identifier: MIT
// INDI's own server with its simulated camera, on a free port of this machine's loopback address.
#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "framesources/indiclient.h"

constexpr char simulatedCamera[] = "CCD Simulator";
constexpr char videoCamera[] = "Video Camera"; ///< of 1280 x 960 pixels, our own

/// The lens and the sensor of the simulated camera.
struct SimulatedSensor {
    int width = 1280, height = 960;
    double scale = 30.45; ///< arcseconds a pixel
    bool bayer = false;
    bool atPole = true; ///< points by itself; false: where the telescope of the server does
};

/// The simulated camera aborts when its server is killed: that leaves no core file, and a test that
/// ends by a crash leaves no server.
class ServerProcess : public QProcess
{
protected:
    void setupChildProcess() override // between fork and exec
    {
        const rlimit noCore = {0, 0};
        ::setrlimit(RLIMIT_CORE, &noCore);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
};

class IndiServer
{
public:
    static bool isInstalled()
    {
        return !QStandardPaths::findExecutable("indiserver").isEmpty() &&
               !QStandardPaths::findExecutable("indi_simulator_ccd").isEmpty();
    }

    static quint16 freePort()
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost, 0);
        return probe.serverPort();
    }

    explicit IndiServer(quint16 serverPort = freePort()) : port(serverPort) {}
    ~IndiServer() { end(); }

    /// True once the camera is there.
    bool start(const QStringList &drivers = {"indi_simulator_ccd"},
               const char *device = simulatedCamera)
    {
        return launch(drivers) && bool(client(device));
    }

    /// True once the server runs.
    bool launch(const QStringList &drivers = {"indi_simulator_ccd"})
    {
        ::mkfifo(fifo().constData(), 0600);
        process = std::make_unique<ServerProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", folder + ':' + environment.value("PATH"));
        environment.insert("HOME", home.path()); // the drivers keep their settings there
        // By its name: paths that are preloaded end at blanks.
        environment.insert("LD_PRELOAD", "libloopbackbind.so");
        environment.insert("LD_LIBRARY_PATH",
                           folder + ':' + environment.value("LD_LIBRARY_PATH", folder));
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        process->setProcessEnvironment(environment);
        process->setStandardOutputFile(QProcess::nullDevice());
        process->setStandardErrorFile(QProcess::nullDevice());
        process->start("indiserver", QStringList{"-p", QString::number(port), "-u",
                                                 home.filePath("socket"), "-f", fifo()} +
                                         drivers);
        return process->waitForStarted();
    }

    /// Starts or stops a driver: "start DRIVER -n NAME".
    void tell(const QByteArray &command) const
    {
        const int file = ::open(fifo().constData(), O_WRONLY | O_NONBLOCK);
        const QByteArray line = command + '\n';
        if (file < 0 || ::write(file, line.constData(), std::size_t(line.size())) != line.size())
            qWarning("the server is not told: %s", command.constData());
        ::close(file);
    }

    /// A client that knows the camera; null if it does not appear.
    std::unique_ptr<framesources::IndiClient> client(const char *device = simulatedCamera) const
    {
        QElapsedTimer waiting;
        waiting.start();
        while (waiting.elapsed() < 20000) {
            auto one = std::make_unique<framesources::IndiClient>("127.0.0.1", port, device);
            if (one->connectServer())
                for (int i = 0; i < 40; ++i) {
                    one->waitForNews(std::chrono::milliseconds(50));
                    if (one->has("CONNECTION"))
                        return one;
                }
            QTest::qSleep(50);
        }
        return nullptr;
    }

    /// Points the camera at the pole.
    bool set(const SimulatedSensor &sensor) const
    {
        // A device that has just connected may lose what it is sent: everything is sent at least
        // twice, and until the device has it.
        for (int time = 0; time < 10; ++time)
            if (setOnce(sensor) && time > 0 && isSet(sensor))
                return true;
        return false;
    }

    bool isSet(const SimulatedSensor &sensor) const
    {
        const auto one = client();
        const auto has = [&one](const char *property, const char *element, double wanted) {
            const auto number =
                waitFor(*one, property) ? one->number(property, element) : std::nullopt;
            return number && std::abs(number->value - wanted) < 1e-3;
        };
        return one && has("CCD_INFO", "CCD_MAX_X", sensor.width) &&
               has("CCD_INFO", "CCD_MAX_Y", sensor.height) &&
               has("SCOPE_INFO", "FOCAL_LENGTH", focalLength(sensor)) &&
               (!sensor.atPole || has("EQUATORIAL_PE", "DEC_PE", declination));
    }

    bool setOnce(const SimulatedSensor &sensor) const
    {
        const auto one = client();
        if (!one)
            return false;
        one->sendSwitch("CONNECTION", "CONNECT");
        one->sendNumbers("SIMULATOR_SETTINGS", {{"SIM_XRES", double(sensor.width)},
                                                {"SIM_YRES", double(sensor.height)},
                                                {"SIM_XSIZE", pixel},
                                                {"SIM_YSIZE", pixel},
                                                {"SIM_MAXVAL", 65000.0},
                                                {"SIM_SATURATION", 1.0},
                                                {"SIM_LIMITINGMAG", 17.0},
                                                {"SIM_NOISE", 10.0},
                                                {"SIM_SKYGLOW", 19.5},
                                                {"SIM_OAGOFFSET", 0.0},
                                                {"SIM_POLAR", 0.0},
                                                {"SIM_POLARDRIFT", 0.0},
                                                {"SIM_PEPERIOD", 0.0},
                                                {"SIM_PEMAX", 0.0},
                                                {"SIM_TIME_FACTOR", 1.0},
                                                {"SIM_ROTATION", 0.0}});
        for (const char *property :
             {"SCOPE_INFO", "SIM_FOCUSING", "SIMULATE_BAYER", "EQUATORIAL_PE"})
            if (!waitFor(*one, property))
                return false;
        one->sendNumbers("SCOPE_INFO", {{"FOCAL_LENGTH", focalLength(sensor)}, {"APERTURE", 10.0}});
        one->sendNumbers(
            "SIM_FOCUSING",
            {{"SIM_FOCUS_POSITION", 36700.0}, {"SIM_FOCUS_MAX", 100000.0}, {"SIM_SEEING", 60.0}});
        one->sendSwitch("SIMULATE_BAYER", sensor.bayer ? "INDI_ENABLED" : "INDI_DISABLED");
        if (sensor.atPole)
            one->sendNumbers("EQUATORIAL_PE", {{"RA_PE", 3.0}, {"DEC_PE", declination}});
        for (int i = 0; i < 20; ++i)
            one->waitForNews(std::chrono::milliseconds(50));
        return true;
    }

    static bool waitFor(framesources::IndiClient &one, const char *property)
    {
        for (int i = 0; i < 200 && !one.has(property); ++i)
            one.waitForNews(std::chrono::milliseconds(50));
        return one.has(property);
    }

    /// Whether no other machine can reach it.
    bool listensOnLoopbackAlone() const
    {
        QFile sockets("/proc/net/tcp"); // of IPv4, the only ones that the server has
        if (!sockets.open(QIODevice::ReadOnly))
            return false;
        const QByteArray own = ':' + QByteArray::number(port, 16).toUpper().rightJustified(4, '0');
        int listening = 0, loopback = 0;
        for (const QByteArray &line : sockets.readAll().split('\n')) {
            const QList<QByteArray> fields = line.simplified().split(' ');
            if (fields.size() < 4 || !fields[1].endsWith(own) || fields[3] != "0A")
                continue;
            ++listening;
            loopback += fields[1].startsWith("0100007F:") ? 1 : 0; // 127.0.0.1, little-endian
        }
        return listening == 1 && loopback == 1;
    }

    void signal(int number) const { ::kill(pid_t(process->processId()), number); }

    /// Sends it to every driver.
    void signalDrivers(int number) const
    {
        const qint64 id = process->processId();
        QFile children(QString("/proc/%1/task/%1/children").arg(id));
        if (children.open(QIODevice::ReadOnly))
            for (const QByteArray &child : children.readAll().split(' '))
                if (const int driver = child.trimmed().toInt(); driver > 0)
                    ::kill(driver, number);
    }

    void end()
    {
        if (!process || process->state() == QProcess::NotRunning)
            return;
        signal(SIGCONT);
        process->kill(); // its drivers end with it
        process->waitForFinished();
    }

    const quint16 port;
    /// Of the server and its drivers; set before `start`.
    QMap<QString, QString> variables;
    /// Of our programs and our library for the server; set before `start`.
    QString folder = GSC_FOLDER;

private:
    static constexpr double pixel = 3.75;       // micrometres
    static constexpr double declination = 89.3; // degrees

    static double focalLength(const SimulatedSensor &sensor) // millimetres
    {
        constexpr double arcsecond = 4.84813681109536e-6; // radians
        return pixel * 1e-3 / (sensor.scale * arcsecond);
    }

    QByteArray fifo() const { return QFile::encodeName(home.filePath("commands")); }

    const QTemporaryDir home;
    std::unique_ptr<QProcess> process;
};
