// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace brenvaldo::platform {

/// The file that an encoder writes, from its start.
///
/// The first byte that the disk refuses spoils it: nothing more is written, and `finish` fails
/// whatever the encoder itself believes.
class OutputFile final : public QIODevice
{
public:
    explicit OutputFile(const QString& path);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    OutputFile(OutputFile&&) = delete;
    OutputFile& operator=(OutputFile&&) = delete;
    ~OutputFile() override;

    /// False from the first refused byte on, or when the file could not be opened.
    [[nodiscard]] bool isWhole() const { return m_fault.isEmpty(); }

    /// Why the file is not whole; "" while it is.
    [[nodiscard]] const QString& fault() const { return m_fault; }

    /// To be called when the encoder is done. True when every byte has left the process.
    [[nodiscard]] bool finish();

    [[nodiscard]] qint64 size() const override;
    bool seek(qint64 position) override;

protected:
    qint64 readData(char* bytes, qint64 length) override;
    qint64 writeData(const char* bytes, qint64 length) override;

private:
    /// Notes the fault of the last system call when it `succeeded` not.
    bool keptWhole(bool succeeded);
    [[nodiscard]] bool writeOut(const char* bytes, qint64 length);
    [[nodiscard]] bool writeWaiting();

    int m_descriptor;
    QByteArray m_waiting; ///< taken, but not written yet
    QString m_fault;
};

} // namespace brenvaldo::platform
