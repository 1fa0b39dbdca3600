// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_generator.h"

#include <algorithm>
#include <memory>

#include <zint.h>

namespace brenvaldo::platform::services {

namespace {

struct SymbolDeleter
{
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};

using Symbol = std::unique_ptr<zint_symbol, SymbolDeleter>;

Symbol newSymbol(int symbology)
{
    Symbol symbol(ZBarcode_Create());
    if (symbol) {
        symbol->symbology = symbology;
        symbol->input_mode = DATA_MODE; // the bytes as they are
    }
    return symbol;
}

bool encode(zint_symbol& symbol, const QByteArray& message)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(message.constData());
    return ZBarcode_Encode(&symbol, bytes, static_cast<int>(message.size())) < ZINT_ERROR;
}

bool isDark(const zint_symbol& symbol, int row, int column)
{
    constexpr int bitsOfByte = 8;
    const unsigned char byte = symbol.encoded_data[row][column / bitsOfByte];
    return ((byte >> (column % bitsOfByte)) & 1) != 0;
}

QImage modules(const zint_symbol& symbol, QSize quiet)
{
    QImage image(
        symbol.width + 2 * quiet.width(),
        symbol.rows + 2 * quiet.height(),
        QImage::Format_Grayscale8
    );
    image.fill(Qt::white);
    for (int row = 0; row < symbol.rows; ++row) {
        unsigned char* line = image.scanLine(row + quiet.height());
        for (int column = 0; column < symbol.width; ++column) {
            if (isDark(symbol, row, column))
                line[column + quiet.width()] = 0;
        }
    }
    return image;
}

bool isAscii(const QByteArray& text)
{
    return std::all_of(text.begin(), text.end(), [](char letter) {
        return static_cast<unsigned char>(letter) < 0x80;
    });
}

} // namespace

std::optional<QImage> qrCode(const QByteArray& message)
{
    constexpr int levelM = 2;
    constexpr int quietModules = 4;
    const Symbol symbol = newSymbol(BARCODE_QRCODE);
    if (!symbol || message.isEmpty())
        return std::nullopt;
    symbol->option_1 = levelM;
    if (!encode(*symbol, message))
        return std::nullopt;
    return modules(*symbol, {quietModules, quietModules});
}

std::optional<QImage> code128(const QByteArray& message, int quietModules)
{
    const Symbol symbol = newSymbol(BARCODE_CODE128);
    // The library would take Latin-1, too.
    if (!symbol || message.isEmpty() || !isAscii(message) || !encode(*symbol, message))
        return std::nullopt;
    return modules(*symbol, {quietModules, 0});
}

} // namespace brenvaldo::platform::services
