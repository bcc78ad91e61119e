// A window that belongs to a window of another program.
#pragma once

#include <QString>

class QWidget;

namespace host {

/// `parent`: as the portal writes it, "x11:400003" or "wayland:…". On X11 the window then stands over that one, and
/// with `isModal` keeps its input. What is no window, or one that can't be reached, changes nothing.
void setForeignParent(QWidget &window, const QString &parent, bool isModal);

/// Whether the parent can only be reached on X11.
bool isOnX11(const QString &parent);

} // namespace host
