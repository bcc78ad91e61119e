// What is installed beside the program for people and their shells, made from the tables of Usage.h.
#pragma once

#include <QByteArray>

namespace host {

/// `man qnprint`, in the macros of man(7).
QByteArray manualPage();

// Each is a file that the shell reads by itself. What `lpstat` says of queues is text to it, and never run.
QByteArray bashCompletion();
QByteArray zshCompletion();
QByteArray fishCompletion();

} // namespace host
