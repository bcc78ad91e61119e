// Loading interface files.
#include "InterfaceFile.h"

#include "Foundation/Bundle.h"
#include "Foundation/SystemLog.h"

#include <QApplication>
#include <QFile>
#include <QUiLoader>

#include <array>

namespace toolkit {

namespace {

template <class W>
QWidget *make(QWidget *parent)
{
    return new W(parent);
}

struct ControlClass
{
    const char *name;
    QWidget *(*make)(QWidget *parent);
};

constexpr std::array kControlClasses{
    ControlClass{"toolkit::LabelControl", make<LabelControl>},
    ControlClass{"toolkit::FieldControl", make<FieldControl>},
    ControlClass{"toolkit::PopUpControl", make<PopUpControl>},
    ControlClass{"toolkit::CheckControl", make<CheckControl>},
    ControlClass{"toolkit::RadioControl", make<RadioControl>},
    ControlClass{"toolkit::StepperControl", make<StepperControl>},
    ControlClass{"toolkit::TabControl", make<TabControl>},
    ControlClass{"toolkit::SeparatorControl", make<SeparatorControl>},
};

class FormLoader : public QUiLoader
{
public:
    explicit FormLoader(QObject *parent)
        : QUiLoader(parent)
    {
        setLanguageChangeEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        for (const ControlClass &control : kControlClasses) {
            if (className != QLatin1String(control.name))
                continue;
            QWidget *const widget = control.make(parent);
            widget->setObjectName(name);
            return widget;
        }
        return QUiLoader::createWidget(className, parent, name);
    }
};

/// One loader for the process. Making one loads every Designer plug-in on the library paths, more than half of what
/// opening a dialog costs, and no interface file uses them: so it is made while there are no such paths.
FormLoader &formLoader()
{
    static QPointer<FormLoader> loader;
    if (!loader) {
        const QStringList paths = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        loader = new FormLoader(qApp);
        QCoreApplication::setLibraryPaths(paths);
    }
    return *loader;
}

/// Properties of controls that people read or hear, and that a file therefore gives as keys.
constexpr std::array kTextProperties{"text",         "toolTip",     "accessibleName", "accessibleDescription",
                                     "increaseName", "decreaseName"};

void localize(QWidget *widget, const foundation::Bundle &bundle)
{
    for (const char *property : kTextProperties) {
        const QString key = widget->property(property).toString();
        if (!key.isEmpty())
            widget->setProperty(property, bundle.localizedString(key));
    }
    if (auto *menu = qobject_cast<PopUpControl *>(widget))
        for (int i = 0; i < menu->count(); ++i)
            menu->setItemText(i, bundle.localizedString(menu->itemText(i)));
    if (auto *radio = qobject_cast<RadioControl *>(widget))
        for (int i = 0; i < radio->rows().size(); ++i)
            radio->setRowTitle(i, bundle.localizedString(radio->rows()[i]));
}

} // namespace

void connectControl(QWidget &control, InterfaceOwner &owner)
{
    QWidget *const widget = &control;
    const auto send = [&owner, widget] { owner.performAction(widget->property("action").toString(), widget); };
    if (auto *menu = qobject_cast<PopUpControl *>(widget)) {
        menu->setValidator([&owner, menu](int index) { return owner.validateMenuItem(MenuItem(menu, index)); });
        QObject::connect(menu, &QComboBox::activated, menu, send);
    } else if (auto *box = qobject_cast<CheckControl *>(widget)) {
        QObject::connect(box, &QAbstractButton::clicked, box, send);
    } else if (auto *radio = qobject_cast<RadioControl *>(widget)) {
        QObject::connect(radio, &RadioControl::chosen, radio, send);
    } else if (auto *stepper = qobject_cast<StepperControl *>(widget)) {
        QObject::connect(stepper, &StepperControl::stepped, stepper, send);
    } else if (auto *field = qobject_cast<FieldControl *>(widget)) {
        QObject::connect(field, &FieldControl::entered, field, send);
        QObject::connect(field, &FieldControl::edited, field, [&owner, field] { owner.controlTextDidChange(field); });
        QObject::connect(field, &FieldControl::editingEnded, field,
                         [&owner, field] { owner.controlTextDidEndEditing(field); });
    }
}

namespace {

/// Controls are the named widgets of our own classes, and whatever else the owner has a field for; the parts that a
/// control is made of have no names.
void connectForm(QWidget *form, const foundation::Bundle &bundle, InterfaceOwner &owner)
{
    QList<QWidget *> widgets = form->findChildren<QWidget *>();
    widgets.prepend(form);
    for (QWidget *widget : widgets) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"))
            continue;
        localize(widget, bundle);
        connectControl(*widget, owner);
        owner.connectField(widget->objectName(), widget);
    }
    for (auto *tabs : form->findChildren<TabControl *>())
        tabs->setCurrent(tabs->current());
}

} // namespace

std::unique_ptr<QWidget> loadInterfaceFile(const foundation::Bundle &bundle, const QString &name, InterfaceOwner &owner)
{
    const auto path = bundle.pathForResource(name, "ui");
    QFile file(path.value_or(QString()));
    if (!path || !file.open(QIODevice::ReadOnly)) {
        foundation::NSLog("%@: the bundle has no interface file %@", {bundle.path(), name + ".ui"});
        return nullptr;
    }
    std::unique_ptr<QWidget> form(formLoader().load(&file));
    if (!form) {
        foundation::NSLog("%@: %@", {*path, formLoader().errorString()});
        return nullptr;
    }
    connectForm(form.get(), bundle, owner);
    owner.awakeFromNib();
    return form;
}

} // namespace toolkit
