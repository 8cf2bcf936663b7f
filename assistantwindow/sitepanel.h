// SPDX-License-Identifier: MIT
// The fields of the site: latitude and longitude, or nothing yet.
#pragma once

#include "assistantwindow/touch.h"
#include "astrometry/places.h"

#include <functional>
#include <optional>

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
    /// Fills one field; the site is known with the other. @param degrees north positive
    void suggestLatitude(double degrees);
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
