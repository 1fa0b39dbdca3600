// SPDX-License-Identifier: GPL-3.0-or-later
#include "handled_exception.h"

namespace brenvaldo::platform {

Exception handledException()
{
    const QString kind = QStringLiteral("NSGenericException");
    try {
        throw;
    } catch (const Exception& exception) {
        return exception;
    } catch (const std::exception& exception) {
        return {kind, QString::fromUtf8(exception.what())};
    } catch (...) {
        return {kind, QStringLiteral("an exception of no known type")};
    }
}

} // namespace brenvaldo::platform
