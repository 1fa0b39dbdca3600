// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace brenvaldo::script {

/// The words of one line, or why the line can't be read.
struct Words
{
    QStringList words = {}; ///< empty for a line that holds blanks and a comment only
    QString fault = {}; ///< empty when the line was read
};

/// Parts a line of a script (UTF-8, without its line feed) into words.
///
/// Words are parted by blanks, TABs and carriage returns. A word that begins with a double quote
/// ends at the next one and may hold blanks and the escapes \" \\ \n \r \t; anywhere else quotes
/// and backslashes stand for themselves. A # at the start of a word opens a comment.
[[nodiscard]] Words wordsOfLine(QByteArrayView line);

} // namespace brenvaldo::script
