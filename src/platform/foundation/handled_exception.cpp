// SPDX-License-Identifier: GPL-3.0-or-later
#include "handled_exception.h"

#include "literals.h"

namespace brenvaldo::platform {

Exception handledException()
{
    const QString kind = u"NSGenericException"_s;
    try {
        throw;
    } catch (const Exception& exception) {
        return exception;
    } catch (const std::exception& exception) {
        return {kind, QString::fromUtf8(exception.what())};
    } catch (...) {
        return {kind, u"an exception of no known type"_s};
    }
}

} // namespace brenvaldo::platform
