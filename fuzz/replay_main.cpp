// Replays every file of the given folders (or single files) through the
// fuzz target's entry point, so the committed corpus runs as a plain test.

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size);

namespace {

int replay(QString const &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return 1;
    }
    QByteArray const bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<uint8_t const *>(bytes.constData()), size_t(bytes.size()));
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    int inputs = 0;
    int failures = 0;
    for (int i = 1; i < argc; ++i) {
        QString const path = QString::fromLocal8Bit(argv[i]);
        if (!QFileInfo(path).isDir()) {
            failures += replay(path);
            ++inputs;
            continue;
        }
        QDirIterator it(path, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            failures += replay(it.next());
            ++inputs;
        }
    }
    std::printf("replayed %d inputs\n", inputs);
    return failures == 0 && inputs > 0 ? 0 : 1;
}
