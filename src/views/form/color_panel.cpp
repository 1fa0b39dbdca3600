// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_panel.h"

#include "hue_plane.h"
#include "unit_field.h"

#include <platform/foundation/literals.h>
#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QVBoxLayout>

#include <array>

namespace brenvaldo::views {

namespace {

constexpr int readyColumns = 8;
constexpr std::array<QRgb, 16> ready{
    0xff000000,
    0xff3c3c3c,
    0xff7f7f7f,
    0xffbfbfbf,
    0xffffffff,
    0xfff5efe0,
    0xff8b5e34,
    0xff5b3a1e,
    0xffd32f2f,
    0xfff57c00,
    0xfffbc02d,
    0xff388e3c,
    0xff00897b,
    0xff1976d2,
    0xff303f9f,
    0xff7b1fa2};

QString hexText(const QColor& color) { return color.name().mid(1).toUpper(); }

class Swatch : public QAbstractButton
{
public:
    Swatch(const QColor& color, QWidget* parent)
        : QAbstractButton(parent)
        , m_color(color)
    {
        setAccessibleName(hexText(color));
        setToolTip(hexText(color));
        setFocusPolicy(Qt::StrongFocus);
    }

    [[nodiscard]] QSize sizeHint() const override { return {24, 20}; }
    [[nodiscard]] const QColor& color() const { return m_color; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QColor line = hasFocus() ? colors().accent : colors().border;
        paintFieldFrame(painter, rect(), {.fill = m_color, .line = line, .focused = hasFocus()});
    }

private:
    QColor m_color;
};

} // namespace

ColorPanel::ColorPanel(const QColor& color, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_plane(new HuePlane(this))
    , m_hex(new UnitField(QString(), this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Choose a colour"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(10);
    column->addWidget(m_plane);
    column->addWidget(hexRow());
    column->addWidget(readyColors());
    m_plane->setColor(color);
    m_hex->setText(hexText(color));
    connect(m_plane, &HuePlane::picked, this, &ColorPanel::takeFromPlane);
    connect(m_hex, &QLineEdit::textEdited, this, &ColorPanel::takeFromHex);
}

QWidget* ColorPanel::hexRow()
{
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(tr("&Hex"), row);
    label->setBuddy(m_hex);
    m_hex->setAccessibleName(tr("Colour as six hexadecimal digits"));
    m_hex->setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9A-Fa-f]{0,6}"_s), m_hex)
    );
    line->addWidget(label);
    line->addWidget(m_hex, 1);
    return row;
}

QWidget* ColorPanel::readyColors()
{
    auto* field = new QWidget(this);
    auto* grid = new QGridLayout(field);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    int index = 0;
    for (const QRgb rgb : ready) {
        auto* swatch = new Swatch(QColor(rgb), field);
        grid->addWidget(swatch, index / readyColumns, index % readyColumns);
        connect(swatch, &QAbstractButton::clicked, this, [this, swatch] { take(swatch->color()); });
        ++index;
    }
    return field;
}

void ColorPanel::showBelow(const QWidget& well)
{
    adjustSize();
    const QRect screen = well.screen()->availableGeometry();
    QPoint corner = well.mapToGlobal(QPoint(0, well.height() + 4));
    if (corner.y() + height() > screen.bottom())
        corner.setY(well.mapToGlobal(QPoint(0, -4)).y() - height());
    corner.setX(
        std::clamp(corner.x(), screen.left(), std::max(screen.left(), screen.right() - width()))
    );
    move(corner);
    show();
    m_plane->setFocus();
}

void ColorPanel::takeFromPlane(const QColor& color)
{
    m_hex->setText(hexText(color));
    Q_EMIT chosen(color);
}

void ColorPanel::takeFromHex()
{
    if (m_hex->text().size() != 6)
        return;
    const QColor color(QLatin1Char('#') + m_hex->text());
    m_plane->setColor(color);
    Q_EMIT chosen(color);
}

void ColorPanel::take(const QColor& color)
{
    m_plane->setColor(color);
    takeFromPlane(color);
}

} // namespace brenvaldo::views
