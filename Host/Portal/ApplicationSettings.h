// What applications say of a print job before its pages exist, and what they are told, in the words of GTK's print
// settings: strings by key, which applications keep and say again the next time.
#pragma once

#include "PortalRequest.h"

#include <QVariantMap>

namespace host {

/// Without what can't be settings: values that are no strings, keys and values without end, and more than so many.
QVariantMap harmlessSettings(const QVariantMap &settings);

/// Puts what an application has kept into a wish. Copies and pages that can't be are left out.
void readSettings(const QVariantMap &settings, DialogWish &wish);

/// What the application is to keep and to go by: its own settings, but nothing that would have copies made or pages
/// chosen twice, or another paper than that of the page set-up.
QVariantMap settingsToReturn(const QVariantMap &own, const PreparedPrint &prepared);

/// Always complete: some applications print nothing without it. The application's own orientation stays.
QVariantMap pageSetupToReturn(const QVariantMap &own, const PreparedPrint &prepared);

/// A title as a window shows it: without mnemonics and an ellipsis.
QString plainTitle(const QString &title);

/// Of a job. The one that is only its dialog's ("Print") says nothing; empty: the document's own is needed.
QString jobTitle(const QString &title, const QString &dialogTitle);

} // namespace host
