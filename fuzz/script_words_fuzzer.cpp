// SPDX-License-Identifier: GPL-3.0-or-later
#include <script/words.h>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace brenvaldo::script;

namespace {

QString quoted(QString word)
{
    word.replace(u'\\', u"\\\\"_s);
    word.replace(u'"', u"\\\""_s);
    word.replace(u'\n', u"\\n"_s);
    word.replace(u'\r', u"\\r"_s);
    word.replace(u'\t', u"\\t"_s);
    return u'"' + word + u'"';
}

} // namespace

/// Whatever words a line has, they come back when they are quoted.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Words found = wordsOfLine(
        QByteArrayView(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))
    );
    QStringList line;
    for (const QString& word : found.words)
        line.append(quoted(word));
    const Words again = wordsOfLine(line.join(u' ').toUtf8());
    if (again.words != found.words || !again.fault.isEmpty())
        std::abort();
    return 0;
}
