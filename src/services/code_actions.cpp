// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_actions.h"

#include "bar_code.h"
#include "qr_code.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>
#include <platform/metadata/image_file_writer.h>

#include <utility>

namespace brenvaldo::services {

namespace {

void write(const std::optional<platform::graphics::Image>& code, const panels::CodePanel& panel)
{
    if (!code)
        return;
    platform::metadata::ImageFileRequest request;
    request.format = platform::codecs::FileFormat::Png;
    const QString path
        = panel.tfQRDestination.stringValue() + panel.tfQRName.stringValue() + u".png"_s;
    // A file that can't be written leaves its reason in the log.
    (void)platform::metadata::writeImageFile(*code, request, path);
}

double sizeOf(const panels::CodePanel& panel)
{
    return platform::intValue(panel.tfQRSize.stringValue());
}

} // namespace

CodeActions::CodeActions(const panels::CodePanel& panel, Alert hAlertWindow)
    : m_panel(panel)
    , m_hAlertWindow(std::move(hAlertWindow))
{
}

void CodeActions::hGenerateCode() const
{
    if (m_panel.pubCodeType.indexOfSelectedItem() == 0)
        hGenerateQRImage();
    else
        hGenerateBarCodeImage();
}

void CodeActions::hGenerateQRImage() const
{
    if (!isComplete())
        return;
    const QByteArray text = m_panel.tfQRtext.stringValue().toUtf8();
    write(cQRCode::QRCodeImageWithData(text, sizeOf(m_panel)), m_panel);
}

void CodeActions::hGenerateBarCodeImage() const
{
    if (!isComplete())
        return;
    const QString text = m_panel.tfQRtext.stringValue();
    write(cBarCode::hBarCodeImageWithNSString(text, sizeOf(m_panel)), m_panel);
}

void CodeActions::registerActions(controls::ActionRegistry& actions) const
{
    actions.add(u"cGUIcontrols"_s, u"hGenerateCode"_s, [this](const auto&) { hGenerateCode(); });
}

bool CodeActions::isComplete() const
{
    for (const controls::TextField* field :
         {&m_panel.tfQRtext, &m_panel.tfQRName, &m_panel.tfQRDestination}) {
        if (field->stringValue().isEmpty()) {
            m_hAlertWindow(
                u"Missing parameter"_s,
                u"Sorry, we are missing some information to generate the code.\r"
                u"Please check the input fields."_s
            );
            return false;
        }
    }
    return true;
}

} // namespace brenvaldo::services
