// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

#include <vips/vips8>

#include <memory>

namespace brenvaldo::platform::codecs {

/// The file of a photo, opened once: its header, its checks and its pixels come from the same file,
/// whatever comes to stand at its path meanwhile.
class OpenedPhoto
{
public:
    /// @throws vips::VError when there is no regular file.
    explicit OpenedPhoto(const QString& path);

    /// Opens this very file again, as long as this object lives.
    [[nodiscard]] QString path() const;
    [[nodiscard]] int descriptor() const { return m_file.handle(); }

private:
    QFile m_file;
};

using SharedPhoto = std::shared_ptr<const OpenedPhoto>;

/// The bytes of the photo for the engine, from the first one on.
///
/// They are read: a file that is cut off while the engine has it mapped ends the program.
[[nodiscard]] vips::VSource readingSource(const SharedPhoto& photo);

} // namespace brenvaldo::platform::codecs
