// SPDX-License-Identifier: MIT
// The fields of the site: latitude and longitude, or nothing yet.
#pragma once

#include "assistant/settingsstore.h"
#include "assistantwindow/touch.h"

#include <functional>

class QLabel;

namespace assistantwindow
{
/// One panel that is shown both before connecting and among the settings. A field at its least
/// value shows a dash: the site is known when both show a number.
class SitePanel : public QWidget
{
public:
    explicit SitePanel(QWidget *parent = nullptr);
    void show(const std::optional<astrometry::Site> &site);
    /// Fills the fields that are known.
    void suggest(const assistant::KnownSite &site);
    void retranslate();
    std::optional<astrometry::Site> site() const;
    void focusLatitude();
    /// What is typed and not yet entered counts.
    void commit();

    std::function<void()> entered; ///< Return in the last field
    std::function<void(const std::optional<astrometry::Site> &)> changed;

private:
    BigSpin *latitude, *longitude;
    QLabel *latitudeName, *longitudeName, *use;
};
} // namespace assistantwindow
