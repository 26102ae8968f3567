// Plays the fuzzer's inputs, the files of a folder, without the fuzzer.

#include <QtCore/QDir>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

int main(int, char *argv[])
{
    const auto files = QDir(QString::fromLocal8Bit(argv[1])).entryInfoList(QDir::Files);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        qInfo("%s", qPrintable(info.fileName()));
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(input.constData()),
                               static_cast<std::size_t>(input.size()));
    }
    return files.isEmpty() ? 1 : 0;
}
