// The sample picture of the halftone method that a radio group selects.
#pragma once

#include "Toolkit/Handles.h"

#include <QPixmap>
#include <QWidget>

#include <array>
#include <optional>

namespace foundation {
class Bundle;
}

/// Keeps no choice of its own: it asks the group whenever it draws.
class HalftoneView_v100_ : public QWidget
{
    Q_OBJECT
    /// Name of the picture that a draw would show now; empty for none.
    Q_PROPERTY(QString picture READ picture)

public:
    HalftoneView_v100_() = default;

    /// Takes the three pictures of the bundle, each when it is first asked for. One that is missing or unreadable stays
    /// null and draws nothing.
    bool initWithFrame(const QRect &frame, const foundation::Bundle &bundle);

    /// The y axis points upward, as everywhere in the toolkit.
    static constexpr bool isFlipped() { return false; }

    /// The selected row; 0 when no group is set.
    std::int32_t halftoneCondition() const { return mHlftnMatrix.selectedRow(); }
    /// Null when the condition names no picture, or a picture that is missing.
    const QPixmap *targetDrawImage() const;

    /// The group belongs to the form.
    void setHlftnMatrix(const toolkit::RadioMatrix &matrix);
    const toolkit::RadioMatrix &hlftnMatrix() const { return mHlftnMatrix; }

    QString picture() const;
    /// Draws anew, and describes the picture anew to those who can't see it.
    void setNeedsDisplay();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    mutable std::array<std::optional<QPixmap>, 3> mHalfoneImg; // binary, dither, error diffusion; nil: not loaded yet
    toolkit::RadioMatrix mHlftnMatrix;
    const foundation::Bundle *m_bundle = nullptr;
};
