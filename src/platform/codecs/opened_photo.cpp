// SPDX-License-Identifier: GPL-3.0-or-later
#include "opened_photo.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>

#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::codecs {

namespace {

/// Where one source stands in its photo.
class PhotoReading
{
public:
    explicit PhotoReading(SharedPhoto photo)
        : m_photo(std::move(photo))
    {
    }

    static gint64
    read(VipsSourceCustom* /*source*/, void* bytes, gint64 length, gpointer self) noexcept
    {
        auto& reading = *static_cast<PhotoReading*>(self);
        const ssize_t count = ::pread(
            reading.m_photo->descriptor(), bytes, static_cast<std::size_t>(length), reading.m_at
        );
        reading.m_at += std::max<ssize_t>(count, 0);
        return count;
    }

    static gint64
    seek(VipsSourceCustom* /*source*/, gint64 offset, int whence, gpointer self) noexcept
    {
        auto& reading = *static_cast<PhotoReading*>(self);
        const gint64 target = reading.start(whence) + offset;
        return target < 0 ? -1 : reading.m_at = target;
    }

    static void release(gpointer self, GClosure* /*closure*/)
    {
        const std::unique_ptr<PhotoReading> owned(static_cast<PhotoReading*>(self));
    }

private:
    [[nodiscard]] gint64 start(int whence) const
    {
        struct stat facts = {};
        if (whence == SEEK_END && ::fstat(m_photo->descriptor(), &facts) == 0)
            return facts.st_size;
        return whence == SEEK_CUR ? m_at : 0;
    }

    SharedPhoto m_photo;
    gint64 m_at = 0;
};

} // namespace

OpenedPhoto::OpenedPhoto(const QString& path)
    : m_file(path)
{
    if (!openRegularFile(m_file))
        throw vips::VError("the file can't be opened");
}

QString OpenedPhoto::path() const { return u"/proc/self/fd/%1"_s.arg(descriptor()); }

vips::VSource readingSource(const SharedPhoto& photo)
{
    VipsSourceCustom* source = vips_source_custom_new();
    PhotoReading* reading = std::make_unique<PhotoReading>(photo).release();
    g_signal_connect(source, "seek", G_CALLBACK(&PhotoReading::seek), reading);
    g_signal_connect_data(
        source,
        "read",
        G_CALLBACK(&PhotoReading::read),
        reading,
        &PhotoReading::release,
        GConnectFlags()
    );
    return vips::VSource(VIPS_SOURCE(source));
}

} // namespace brenvaldo::platform::codecs
