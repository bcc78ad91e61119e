#include "SheetPages.h"

#include <qpdf/Constants.h>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr auto kLayers = "/OCProperties";
constexpr auto kDrawing = "/Page";
constexpr QRectF kUsualBox(0, 0, 612, 792); // of a page that has none, as programs that show pages take it
constexpr int kQuarter = 90;
constexpr int kFull = 360;

/// Empty for what is no box.
QRectF boxFrom(QPDFObjectHandle object)
{
    if (!object.isRectangle())
        return {};
    const auto corners = object.getArrayAsRectangle();
    const QRectF box(QPointF(corners.llx, corners.lly), QPointF(corners.urx, corners.ury));
    const bool isSane =
        std::isfinite(box.width()) && std::isfinite(box.height()) && std::isfinite(box.x()) && std::isfinite(box.y());
    return isSane ? box.normalized() : QRectF();
}

double unitOf(QPDFPageObjectHelper page)
{
    QPDFObjectHandle unit = page.getObjectHandle().getKey("/UserUnit");
    return unit.isNumber() && unit.getNumericValue() > 0 ? unit.getNumericValue() : 1;
}

int rotationOf(QPDFPageObjectHelper page)
{
    QPDFObjectHandle rotation = page.getAttribute("/Rotate", false);
    if (!rotation.isInteger() || rotation.getIntValue() % kQuarter != 0)
        return 0;
    return static_cast<int>(((rotation.getIntValue() % kFull) + kFull) % kFull);
}

QPDFObjectHandle rectangle(const QRectF &box)
{
    return QPDFObjectHandle::newFromRectangle({box.left(), box.top(), box.right(), box.bottom()});
}

/// What is hidden stays hidden.
void copyLayers(QPDF &source, QPDF &target)
{
    QPDFObjectHandle layers = source.getRoot().getKey(kLayers);
    if (layers.isDictionary())
        target.getRoot().replaceKey(kLayers, target.copyForeignObject(source.makeIndirectObject(layers)));
}

/// Forms and comments become part of the pages, as far as they are printed.
void flattenAnnotations(QPDF &document)
{
    QPDFAcroFormDocumentHelper(document).generateAppearancesIfNeeded();
    QPDFPageDocumentHelper(document).flattenAnnotations(an_print, an_invisible | an_hidden);
}

} // namespace

QSizeF SeenPage::size() const
{
    const QSizeF upright = box.size() * unit;
    return rotation % (2 * kQuarter) == 0 ? upright : upright.transposed();
}

SeenPage viewOf(QPDFPageObjectHelper page)
{
    QRectF whole = boxFrom(page.getMediaBox());
    if (whole.isEmpty())
        whole = kUsualBox;
    const QRectF seen = boxFrom(page.getCropBox()) & whole;
    return {seen.isEmpty() ? whole : seen, unitOf(page), rotationOf(page)};
}

SheetPages::SheetPages(QPDF &source, const Sheet &sheet, Scaling wanted)
    : m_source(source)
    , m_sheet(sheet)
    , m_pages(QPDFPageDocumentHelper(source).getAllPages())
    , m_scaling(wanted)
{
    std::vector<QSizeF> sizes;
    for (const QPDFPageObjectHelper &page : m_pages) {
        m_views.push_back(viewOf(page));
        sizes.push_back(m_views.back().size());
    }
    m_scaling = decided(wanted, sizes, sheet);
    flattenAnnotations(source);
}

std::unique_ptr<QPDF> SheetPages::document(const std::vector<int> &numbers)
{
    auto target = std::make_unique<QPDF>();
    target->emptyPDF();
    copyLayers(m_source, *target);
    for (const int number : numbers) {
        const auto index = static_cast<std::size_t>(number) - 1;
        if (numbers.size() < m_pages.size()) // pages may share what they draw with
            m_pages.at(index).removeUnreferencedResources();
        add(*target, m_pages.at(index), m_views.at(index));
    }
    return target;
}

/// The page is drawn as it is looked at, so what is looked at becomes all that it has, and a turn more of its rotation.
void SheetPages::add(QPDF &target, QPDFPageObjectHelper page, const SeenPage &view) const
{
    const Placement placement = placementOf(view.size(), m_sheet, m_scaling);
    QPDFObjectHandle source = page.getObjectHandle();
    for (const char *box : {"/MediaBox", "/CropBox", "/TrimBox"})
        source.replaceKey(box, rectangle(view.box));
    source.replaceKey("/UserUnit", QPDFObjectHandle::newReal(view.unit));
    const int turn = placement.isTurned ? (m_sheet.turnsLeft ? kFull - kQuarter : kQuarter) : 0;
    source.replaceKey("/Rotate", QPDFObjectHandle::newInteger((view.rotation + turn) % kFull));
    QPDFObjectHandle drawing = target.copyForeignObject(page.getFormXObjectForPage());

    QPDFObjectHandle sheet = QPDFObjectHandle::newDictionary();
    sheet.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    sheet.replaceKey("/MediaBox", rectangle({0, 0, m_sheet.size.width, m_sheet.size.height}));
    sheet.replaceKey("/Resources", QPDFObjectHandle::parse("<< /XObject << >> >>"));
    sheet.getKey("/Resources").getKey("/XObject").replaceKey(kDrawing, drawing);
    QPDFPageObjectHelper onSheet(target.makeIndirectObject(sheet));
    const QRectF &where = placement.where;
    const double height = m_sheet.size.height; // there, y points upward
    const std::string content = onSheet.placeFormXObject(
        drawing, kDrawing, {where.left(), height - where.bottom(), where.right(), height - where.top()}, false, true,
        true);
    onSheet.getObjectHandle().replaceKey("/Contents", target.newStream(content));
    QPDFPageDocumentHelper(target).addPage(onSheet, false);
}

} // namespace host
