#include "ForeignParent.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace host {

namespace {

constexpr QLatin1String kX11("x11:");

/// 0 for none. In hexadecimal, with 0x or without.
WId windowNamed(const QString &parent)
{
    bool isNumber = false;
    const qulonglong number = parent.mid(kX11.size()).toULongLong(&isNumber, 16);
    constexpr qulonglong kMost = 0xffffffff;
    return isNumber && number <= kMost ? static_cast<WId>(number) : 0;
}

} // namespace

bool isOnX11(const QString &parent) { return parent.startsWith(kX11); }

void setForeignParent(QWidget &window, const QString &parent, bool isModal)
{
    window.setWindowModality(isModal ? Qt::WindowModal : Qt::NonModal);
    if (!isOnX11(parent) || QGuiApplication::platformName() != "xcb" || windowNamed(parent) == 0)
        return;
    QWindow *const foreign = QWindow::fromWinId(windowNamed(parent));
    if (!foreign)
        return;
    window.winId(); // makes the window that can belong to it
    foreign->setParent(nullptr);
    QObject::connect(&window, &QObject::destroyed, foreign, &QObject::deleteLater);
    window.windowHandle()->setTransientParent(foreign);
}

} // namespace host
