// A sheet of the preview as far as it is drawn: coarsely, in parts, as a whole. Whoever draws waits: it belongs on a
// thread of its own.
#pragma once

#include "Pages/PrintedPages.h"

#include <QRegion>

namespace host {

/// What a picture is of, and how it is to be made.
struct SheetView
{
    std::shared_ptr<Document> document;
    Sheet sheet;
    Resolution resolution;
    Scaling scaling = Scaling::automatic;
    QString ranges;
    int page = 0;                         // from 0 on, among those that are printed
    std::optional<PDEPrintEffect> effect; // nil: the plain page
    QSize size;                           // of the picture; empty: a dot a pixel
    QRect visible;                        // in dots of the sheet: what is looked at, and comes first; empty: all of it

    friend bool operator==(const SheetView &, const SheetView &) = default;

    bool hasSamePages(const SheetView &other) const;
    bool hasSameSheet(const SheetView &other) const;
    /// But for what of it is looked at.
    bool hasSamePicture(const SheetView &other) const;
    /// Of the sheet in grey, in its dots: what the visible part comes out of.
    QRect area() const;
};

struct PreviewTimes
{
    std::chrono::milliseconds program = PageReader::kPatience; // with a program, for one question
    /// A page that is drawn coarsely within that is there as a whole before a part of it would help.
    std::chrono::milliseconds quick{300};
};

/// What there is of a sheet, for whoever does not have it at hand.
struct SheetProgress
{
    bool isInParts = false; // it takes its time, and is not there as a whole
    QRegion parts;          // in dots of the sheet in grey
    QString problem;        // why it can't be drawn as a whole; empty: it can, as far as is known

    /// What of the visible part is still to be drawn.
    QRegion missing(const SheetView &view) const;
};

class DrawnSheet
{
public:
    explicit DrawnSheet(const PreviewTimes &times = {});

    const SheetView &view() const { return m_view; }
    const SheetProgress &progress() const { return m_progress; }
    /// Of the pages that are printed; 0 while that is not known.
    int count() const { return m_pages ? m_pages->count() : 0; }
    bool isWhole() const { return !m_whole.isNull(); }

    /// What is drawn from now on. Keeps of what there is whatever the view has in common with the one before; a page
    /// beyond the last is the last. Reads the document where it has to.
    void turnTo(const SheetView &view, const std::stop_token &stop);
    /// Each does nothing where it is done already or would be of no use, and tells of a problem in the progress.
    void drawCoarse(const std::stop_token &stop);
    /// Whether there is more to be seen.
    bool drawPart(const std::stop_token &stop);
    void drawWhole(const std::stop_token &stop);

    /// The best that there is; null where there is nothing, and where there is a problem and no part is drawn.
    QImage picture() const;

private:
    SheetDots dots() const { return {m_view.sheet, m_view.resolution}; }
    void forget();
    void fail(const foundation::Problem &problem, const std::stop_token &stop);
    QImage sized(const QImage &sheet) const;

    PreviewTimes m_times;
    SheetView m_view;
    SheetProgress m_progress;
    std::optional<PrintedPages> m_pages;
    QImage m_coarse; // these in grey
    QImage m_parts;  // coarse where none is drawn; null: none is
    QImage m_whole;  // in the head's dots
};

} // namespace host
