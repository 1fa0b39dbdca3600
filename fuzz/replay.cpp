// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz target on the files of folders, and on variations of them, without libFuzzer.

#include <QByteArray>
#include <QDirIterator>
#include <QFile>
#include <QTextStream>

#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr int variationsPerFile = 48;

void feed(const QByteArray& input)
{
    // A copy of its own size, so that a sanitiser sees a read behind the end.
    const std::vector<std::uint8_t> bytes(input.cbegin(), input.cend());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

/// Cuts, changes or doubles a part of `input`, the same way at each run.
QByteArray variationOf(QByteArray input, int number)
{
    std::mt19937 random(static_cast<unsigned>(number));
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<unsigned long>(end));
    };
    if (input.isEmpty())
        return input;
    switch (number % 4) {
    case 0:
        return input.left(below(input.size()));
    case 1:
        return input.insert(below(input.size()), input.mid(below(input.size()), 16));
    default:
        for (int change = 0; change < number % 7 + 1; ++change)
            input[below(input.size())] = static_cast<char>(random());
        return input;
    }
}

int feedFolder(const QString& folder)
{
    int files = 0;
    QDirIterator entries(folder, QDir::Files);
    while (entries.hasNext()) {
        QFile file(entries.next());
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray input = file.readAll();
        feed(input);
        for (int number = 0; number < variationsPerFile; ++number)
            feed(variationOf(input, number));
        ++files;
    }
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    int files = 0;
    for (int index = 1; index < argc; ++index)
        files += feedFolder(QFile::decodeName(argv[index]));
    QTextStream(stdout) << files << " files and " << variationsPerFile << " variations of each\n";
    return files > 0 ? 0 : 1;
}
