// SPDX-License-Identifier: MIT
// The window with the virtual mount's controls: what do they change, and when is it written?
#pragma once

#include "virtualmount/mountmodel.h"
#include "virtualmount/places.h"
#include "virtualmount/skydocument.h"
#include "widgets/wheelguard.h"

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <optional>
#include <random>
#include <vector>

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QDial;
class QGridLayout;
class QLabel;
class QPushButton;
class QShortcut;
class QSlider;

namespace virtualmount
{
class PanelArea;

/// Edits one sky file live and stores nothing else. Shows the file's contents, whoever wrote them.
class MountWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MountWindow(const QString &skyFile, QWidget *parent = nullptr);
    /// Beside a program that does not use the built-in star angles: the truth leaves them out.
    void leaveOutAngles();
    /// The panels scroll if they are higher than a screen allows.
    /// @param height pixels of the screen that are available to windows
    void fitScreen(int height);
    /// Fits the primary screen, and divides it between this window and the program's.
    WindowGeometries shareScreen();

protected:
    /// Resets passing clouds to the value before them.
    void closeEvent(QCloseEvent *event) override;
    /// Passes the arrow keys to fields that need them, and returns them to the bolts after a mouse
    /// action.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using SkyState = virtualsky::SkyState;
    using Bolt = double SkyState::*;

    // The panels in layout and tab order: those of the mount are in mountpanels.cpp, those of its
    // surroundings in skypanels.cpp, the last one in truthpanel.cpp.
    QWidget *axisPanel();
    QWidget *boltPanel();
    QWidget *sitePanel();
    QWidget *weatherPanel();
    QWidget *faultPanel();
    QWidget *truthPanel();
    struct BoltButton;
    struct Slider;
    struct Coordinate;
    QPushButton *boltButton(const BoltButton &row);
    void placeAzimuthButtons(QGridLayout &grid, bool south);
    QSlider *addSlider(QGridLayout &grid, const Slider &row);
    void addCoordinate(QGridLayout &grid, const Coordinate &row);
    QWidget *timeFields();
    QCheckBox *checkBox(const QString &name, const QString &text,
                        const std::function<bool(const SkyState &)> &isOn,
                        const std::function<void(SkyState &, bool)> &set);
    void addStatusLine();
    QShortcut &addShortcut(const QKeySequence &key, const std::function<void()> &action);
    void watchField(QWidget &field);
    void focusBolts();

    void edit(const SkyDocument::Change &change);
    void turnAxisBy(double degrees);
    void turnAxisTo(double degrees);
    void followDial(int degrees);
    void setTracking(bool on);
    void setTimeMode(int index);
    void setDate(const QDateTime &utc);
    void setPassing(bool on);
    void setTruthShown(bool on);
    static QString truthButtonText(bool isShown);
    void reset();
    void newExercise();
    void beginCounts();
    void replaceFile();

    static double systemSeconds(); ///< the computer's UTC since 1970
    void reload();                 ///< at the file, and show what has changed
    void watch();
    void tick(); ///< of the axis in motion and the passing clouds
    void keepTicking();
    void stopMotion();
    void refresh();
    void refreshAxis(const virtualsky::Moment &moment);
    void refreshTexts();
    QString truthText() const;
    QString hiddenTruthText() const;
    QString anglesText() const;
    QString statusText() const;

    SkyDocument document;
    virtualsky::SkyClock clock;
    AxisMotion motion;
    SkyState shown;          ///< what the fields show
    double skySeconds = 0.0; ///< UTC of the sky that the fields show
    std::mt19937 random;     ///< draws exercises
    bool truthShown = false;
    bool hasAngles = true;
    std::optional<bool> placedForSouth;        ///< the buttons of the azimuth bolt
    std::vector<QPushButton *> azimuthButtons; ///< from west to east
    bool dialLeads = false;                    ///< the dial was turned and the axis follows it
    double altitudeBase, azimuthBase; ///< bolt positions where the turn count is 0, degrees
    bool beganAligned = false;        ///< the mount was aligned at those positions
    double cloudsBefore = 0.0;        ///< value that is restored when the clouds stop

    WheelGuard wheelGuard;
    QFileSystemWatcher watcher;
    QTimer poll, ticker;
    QElapsedTimer sinceTick, sincePassing;

    PanelArea *area = nullptr;
    std::vector<std::function<void(const SkyState &)>> fields; ///< each shows a state
    QDial *dial = nullptr;
    QLabel *angle = nullptr, *altitudeCount = nullptr, *azimuthCount = nullptr;
    QCheckBox *passing = nullptr;
    QWidget *cloudSlider = nullptr;
    QComboBox *timeMode = nullptr;
    QDateTimeEdit *date = nullptr;
    QPushButton *truthButton = nullptr, *replaceButton = nullptr;
    QLabel *truthLabel = nullptr, *anglesLabel = nullptr, *status = nullptr;
};
} // namespace virtualmount
