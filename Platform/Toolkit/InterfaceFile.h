// Interface files: forms of a bundle, loaded at run time and connected to the object that owns them.
#pragma once

#include "Handles.h"

#include <memory>

namespace foundation {
class Bundle;
}

namespace toolkit {

/// What a form asks of its owner. The owner outlives the form.
class InterfaceOwner
{
public:
    virtual ~InterfaceOwner() = default;

    /// Offers a control of the form under its name; false when the owner has no field of that name and kind.
    virtual bool connectField(const QString &name, QWidget *control) = 0;
    /// The form is loaded and every field is connected.
    virtual void awakeFromNib() = 0;
    /// A person used `sender`, whose property `action` is `name`. Unknown names are ignored.
    virtual void performAction(const QString &name, QWidget *sender) = 0;
    /// Whether the item may be chosen; asked of each item in order whenever a menu is about to offer its items.
    virtual bool validateMenuItem(const MenuItem &item) = 0;
    virtual void controlTextDidChange(QWidget *field) = 0;
    virtual void controlTextDidEndEditing(QWidget *field) = 0;
};

/// Reports to the owner what a person does with a control that no interface file has. Its property `action`, where it
/// has one, is the action's name.
void connectControl(QWidget &control, InterfaceOwner &owner);

/// Loads `name`.ui of the bundle with its texts localized, connects it and wakes the owner. Nil, with one sentence in
/// the system log, when the file is missing or unreadable; the owner is then left alone.
std::unique_ptr<QWidget> loadInterfaceFile(const foundation::Bundle &bundle, const QString &name,
                                           InterfaceOwner &owner);

} // namespace toolkit
