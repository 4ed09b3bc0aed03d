#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QProxyStyle>

namespace lineforge
{

// The desktop's own style with all that has a size of its own (marks, scroll bars, icons, distances in boxes and menus)
// that many times as large as it usually is. Lines stay as thin as they are, and nothing covers them.
class ScaledStyle : public QProxyStyle
{
public:
    explicit ScaledStyle(double factor);

    QIcon standardIcon(StandardPixmap kind, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;

private:
    class Enlarged;

    const QFontMetrics& MetricsOf(const QWidget* widget) const;

    double factor_;
    mutable QFont font_; // that the metrics are for
    mutable QFontMetrics metrics_;
};

} // namespace lineforge
