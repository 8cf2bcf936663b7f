// SPDX-License-Identifier: MIT
// Measures the time from process start to the first painted window, over several starts.
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "bench/processfigures.h"
#include "camera/session.h"
#include "mainwindow/mainwindow.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{
double monotonicSeconds()
{
    return clockSeconds(CLOCK_MONOTONIC);
}

/// Quits the program when the window has been painted.
class FirstPaint : public QObject
{
protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            object->removeEventFilter(this);
            QTimer::singleShot(0, [] { QApplication::quit(); });
        }
        return false;
    }
};

/// Takes the same steps as the program and prints the time since `started` after each stage.
int showWindow(int argc, char *argv[], double started)
{
    const auto passed = [started] { return 1e3 * (monotonicSeconds() - started); };
    const double entered = passed();
    prepareApplication();
    QApplication application(argc, argv);
    const double connected = passed();
    startProgram(application, nullptr);
    const double styled = passed();
    Session session;
    MainWindow window(session);
    const TerminationSignals closing(window);
    const double built = passed();
    FirstPaint watch;
    window.installEventFilter(&watch);
    window.show();
    QApplication::exec();
    printf("%.1f %.1f %.1f %.1f %.1f\n", entered, connected, styled, built, passed());
    fflush(stdout);
    _exit(0);
}

/// Starts this program again and reads its output.
std::vector<double> startOnce(const std::string &self)
{
    const std::string command = self + " " + std::to_string(monotonicSeconds()) + " 2>/dev/null";
    FILE *const pipe = popen(command.c_str(), "r");
    std::vector<double> stages;
    for (double value = 0; pipe && fscanf(pipe, "%lf", &value) == 1;)
        stages.push_back(value);
    if (pipe)
        pclose(pipe);
    return stages;
}
} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1)
        return showWindow(argc, argv, std::strtod(argv[1], nullptr));
    constexpr int starts = 21; // the first one only warms up the caches
    static const char *const stages[] = {"main() entered", "application object", "style sheet",
                                         "window built", "window painted"};
    std::vector<std::vector<double>> times(std::size(stages));
    for (int i = 0; i < starts; ++i) {
        const std::vector<double> once = startOnce(argv[0]);
        if (once.size() != std::size(stages))
            return fprintf(stderr, "the program did not start\n"), 1;
        for (std::size_t stage = 0; stage < once.size() && i > 0; ++stage)
            times[stage].push_back(once[stage]);
    }
    for (std::size_t stage = 0; stage < times.size(); ++stage) {
        std::sort(times[stage].begin(), times[stage].end());
        printf("%-20s median %6.1f ms, best %6.1f, worst %6.1f\n", stages[stage],
               times[stage][times[stage].size() / 2], times[stage].front(), times[stage].back());
    }
    return 0;
}
