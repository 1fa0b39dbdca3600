// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour_panel.h"

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

QString hexText(const QColor& colour) { return colour.name().mid(1).toUpper(); }

class Swatch : public QAbstractButton
{
public:
    Swatch(const QColor& colour, QWidget* parent)
        : QAbstractButton(parent)
        , m_colour(colour)
    {
        setAccessibleName(hexText(colour));
        setToolTip(hexText(colour));
        setFocusPolicy(Qt::StrongFocus);
    }

    [[nodiscard]] QSize sizeHint() const override { return {24, 20}; }
    [[nodiscard]] const QColor& colour() const { return m_colour; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QColor line = hasFocus() ? colours().accent : colours().border;
        paintFieldFrame(painter, rect(), {.fill = m_colour, .line = line, .focused = hasFocus()});
    }

private:
    QColor m_colour;
};

} // namespace

ColourPanel::ColourPanel(const QColor& colour, QWidget* parent)
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
    column->addWidget(readyColours());
    m_plane->setColour(colour);
    m_hex->setText(hexText(colour));
    connect(m_plane, &HuePlane::picked, this, &ColourPanel::takeFromPlane);
    connect(m_hex, &QLineEdit::textEdited, this, &ColourPanel::takeFromHex);
}

QWidget* ColourPanel::hexRow()
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

QWidget* ColourPanel::readyColours()
{
    auto* field = new QWidget(this);
    auto* grid = new QGridLayout(field);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    int index = 0;
    for (const QRgb rgb : ready) {
        auto* swatch = new Swatch(QColor(rgb), field);
        grid->addWidget(swatch, index / readyColumns, index % readyColumns);
        connect(swatch, &QAbstractButton::clicked, this, [this, swatch] {
            take(swatch->colour());
        });
        ++index;
    }
    return field;
}

void ColourPanel::showBelow(const QWidget& well)
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

void ColourPanel::takeFromPlane(const QColor& colour)
{
    m_hex->setText(hexText(colour));
    Q_EMIT chosen(colour);
}

void ColourPanel::takeFromHex()
{
    if (m_hex->text().size() != 6)
        return;
    const QColor colour(QLatin1Char('#') + m_hex->text());
    m_plane->setColour(colour);
    Q_EMIT chosen(colour);
}

void ColourPanel::take(const QColor& colour)
{
    m_plane->setColour(colour);
    takeFromPlane(colour);
}

} // namespace brenvaldo::views
