// Labels and entry fields as widgets.
#pragma once

#include "FittingText.h"

#include <QLabel>
#include <QLineEdit>

namespace toolkit {

/// The text for a label, button or tab that shows each '&' as it stands instead of underlining what follows.
QString withoutMnemonic(QString text);

/// The text without what controls terminals or turns the direction of reading; ends of lines stay.
QString harmless(const QString &text);

/// A colour by its meaning; what it looks like is the palette's matter.
enum class TextColor { control, disabledControl };

/// What labels and entry fields have in common.
class TextControl
{
public:
    virtual ~TextControl() = default;

    virtual QString stringValue() const = 0;
    virtual void setStringValue(const QString &text) = 0;

    TextColor textColor() const { return m_color; }
    void setTextColor(TextColor color);

protected:
    explicit TextControl(QWidget &self)
        : m_self(self)
    {}
    /// Call when the palette may have changed.
    void followPalette();

private:
    QWidget &m_self;
    TextColor m_color = TextColor::control;
    bool m_applying = false;
};

class LabelControl : public QLabel, public TextControl
{
    Q_OBJECT
    Q_PROPERTY(QString text READ stringValue WRITE setStringValue)
    /// The name of the field beside it that the text is the unit of: assistive technology tells the one with the other.
    Q_PROPERTY(QString unitOf MEMBER m_unitOf)

public:
    explicit LabelControl(QWidget *parent = nullptr);

    QString stringValue() const override { return m_text; }
    void setStringValue(const QString &text) override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    FittingText fittingText() const;

    QString m_text;
    QString m_shown; // the same, harmless
    QString m_unitOf;
};

/// Every change of the text that code does not make through `setStringValue` is an edit of a person: by keys, paste,
/// drop, undo, input method or assistive technology, which Qt reports in different ways.
class FieldControl : public QLineEdit, public TextControl
{
    Q_OBJECT
    Q_PROPERTY(QString text READ stringValue WRITE setTextByCode)

public:
    explicit FieldControl(QWidget *parent = nullptr);

    QString stringValue() const override { return text(); }
    /// The cursor stays where it was, so that a correction while typing does not carry it away.
    void setStringValue(const QString &text) override;

    bool isEditable() const { return !isReadOnly(); }
    void setEditable(bool editable) { setReadOnly(!editable); }

    /// A text too long for the field shows whole while the pointer rests on it.
    bool allowsExpansionToolTips() const { return m_expansionToolTips; }
    void setAllowsExpansionToolTips(bool allow) { m_expansionToolTips = allow; }

    /// For a person: replaces the whole text in one edit.
    void paste(const QString &text);
    /// For a person: presses Return.
    void enter();

Q_SIGNALS:
    void edited();       // a person changed the text; never sent for what code sets
    void entered();      // a person pressed Return
    void editingEnded(); // after `entered`; moving the focus away does not end editing, so nobody is held in the field

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setTextByCode(const QString &text);
    void takeChange();

    bool m_expansionToolTips = true;
    bool m_byCode = false;
    QString m_taken; // the text before a change
};

} // namespace toolkit
