#include "qt/style/ScaledStyle.h"

#include "qt/style/Outlines.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOption>
#include <QWidget>

#include <cmath>

namespace lineforge
{

namespace
{
constexpr double usualDotsPerInch = 96;
// Between the line around lists and texts and what they show: where a pixel isn't a whole number of dots, this would
// cover the line.
constexpr int frameGap = 1;

// As a font has them on a surface of so many dots per inch. Its height in pixels is that of any other surface.
QFontMetrics MetricsAt(double dotsPerInch, QFont font)
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    const int dotsPerMetre = static_cast<int>(std::lround(dotsPerInch * inchesPerMetre));
    QImage surface(1, 1, QImage::Format_Mono);
    surface.setDotsPerMeterX(dotsPerMetre);
    surface.setDotsPerMeterY(dotsPerMetre);
    if (font.pixelSize() < 0)
        font.setPixelSize(QFontInfo(font).pixelSize());
    return QFontMetrics(font, &surface);
}

const QWidget* ViewWithin(const QWidget* widget)
{
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget);
    return area ? area->viewport() : nullptr;
}
} // namespace

// The toolkit's styles take their sizes from the dots per inch that the metrics of an option's font are for: here these
// are more, while it lives. A copy of the option wouldn't do, as it would lose what only the option's own kind has; so
// the caller's is changed and changed back.
class ScaledStyle::Enlarged
{
public:
    Enlarged(const ScaledStyle& style, const QStyleOption* option, const QWidget* widget)
        : none_(OfWidget(option ? nullptr : widget)), option_(option ? option : &none_),
          metrics_(const_cast<QStyleOption*>(option_)->fontMetrics, style.MetricsOf(widget))
    {
    }

    const QStyleOption* Option() const { return option_; }

private:
    static QStyleOption OfWidget(const QWidget* widget)
    {
        QStyleOption option;
        if (widget)
            option.initFrom(widget);
        return option;
    }

    QStyleOption none_; // for a caller who has none
    const QStyleOption* option_;
    QScopedValueRollback<QFontMetrics> metrics_;
};

ScaledStyle::ScaledStyle(double factor)
    : factor_(factor), font_(QApplication::font()), metrics_(MetricsAt(factor * usualDotsPerInch, font_))
{
}

const QFontMetrics& ScaledStyle::MetricsOf(const QWidget* widget) const
{
    const QFont font = widget ? widget->font() : QApplication::font();
    if (font != font_) {
        font_ = font;
        metrics_ = MetricsAt(factor_ * usualDotsPerInch, font);
    }
    return metrics_;
}

// An icon shows no larger than its largest picture is, and the toolkit's own have pictures for the usual size.
QIcon ScaledStyle::standardIcon(StandardPixmap kind, const QStyleOption* option, const QWidget* widget) const
{
    QIcon icon = QProxyStyle::standardIcon(kind, option, widget);
    const int side = pixelMetric(PM_MessageBoxIconSize, nullptr, widget);
    const QSize wanted(side, side);
    const QSize largest = icon.actualSize(wanted);
    const QSize scaled = (largest * factor_).boundedTo(wanted);
    if (largest.isEmpty() || scaled.width() <= largest.width())
        return icon;
    QIcon larger(icon.pixmap(largest).scaled(scaled, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    for (const QSize& size : icon.availableSizes())
        larger.addPixmap(icon.pixmap(size));
    return larger;
}

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    // The title isn't drawn by this style, but by the desktop.
    if (metric == PM_TitleBarHeight)
        return QProxyStyle::pixelMetric(metric, option, widget);
    const Enlarged enlarged(*this, option, widget);
    const int usual = QProxyStyle::pixelMetric(metric, enlarged.Option(), widget);
    return metric == PM_DefaultFrameWidth && ViewWithin(widget) ? usual + frameGap : usual;
}

QSize ScaledStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const
{
    const Enlarged enlarged(*this, option, widget);
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    // The usual styles have one distance between the words of a menu bar for all sizes.
    if (type == CT_MenuBarItem)
        size.rwidth() += static_cast<int>(std::lround((size.width() - contents.width()) * (factor_ - 1)));
    return size;
}

QRect ScaledStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const Enlarged enlarged(*this, option, widget);
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect ScaledStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                  const QWidget* widget) const
{
    const Enlarged enlarged(*this, option, widget);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void ScaledStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    const Enlarged enlarged(*this, option, widget);
    const QWidget* view = ViewWithin(widget);
    if (!view || element != PE_Frame)
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    // The usual styles' line is as thin as a dot, and lost where the edge runs through the midst of one.
    painter->fillRect(option->rect, OutlineColour(option->palette));
    painter->fillRect(option->rect.adjusted(1, 1, -1, -1), view->palette().brush(view->backgroundRole()));
}

void ScaledStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const Enlarged enlarged(*this, option, widget);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ScaledStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const
{
    const Enlarged enlarged(*this, option, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace lineforge
