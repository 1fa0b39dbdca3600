// SPDX-License-Identifier: GPL-3.0-or-later
#include "about_box.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>
#include <views/look/muted_label.h>
#include <views/look/theme.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace brenvaldo::views {

namespace {

QString libraries()
{
    return AboutBox::tr("Qt %1 (LGPL 3), libvips (LGPL 2.1), libheif (LGPL 3), Exiv2 (GPL 2), "
                        "Little CMS (MIT), SQLite (public domain)")
        .arg(QString::fromLatin1(qVersion()));
}

} // namespace

AboutBox::AboutBox(QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"aboutBox"_s);
    setWindowTitle(tr("About Brenvaldo"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 26, 32, 20);
    column->setSpacing(10);
    auto* mark = new QLabel(this);
    mark->setPixmap(QApplication::windowIcon().pixmap(QSize(72, 72), devicePixelRatioF()));
    mark->setAlignment(Qt::AlignCenter);
    auto* name = new QLabel(tr("Brenvaldo %1").arg(QApplication::applicationVersion()), this);
    QFont large = scaledFont(font(), 1.5);
    large.setWeight(QFont::DemiBold);
    name->setFont(large);
    name->setAlignment(Qt::AlignCenter);
    column->addWidget(mark);
    column->addWidget(name);
    const QStringList texts{
        tr("Watermarks, sizes, frames, names and galleries for many photos at once."),
        tr("Free software under the GNU General Public License, version 3 or later."),
        tr("It stands on:") + QLatin1Char(' ') + libraries()};
    for (const QString& text : texts) {
        auto* label = new MutedLabel(text, this);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setMinimumWidth(380);
        column->addWidget(label);
    }
    auto* close = new QPushButton(tr("&Close"), this);
    close->setAccessibleName(tr("Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    column->addWidget(close, 0, Qt::AlignCenter);
}

} // namespace brenvaldo::views
