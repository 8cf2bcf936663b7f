// SPDX-License-Identifier: MIT
// The records that the GUI thread and the capture thread share.
#include "camera/sharedstate.h"

OverlayFlags overlayFlags;
AlignmentPoints alignmentPoints;
MonitorPositions monitorPositions;
RefractionSettings refractionSettings;
