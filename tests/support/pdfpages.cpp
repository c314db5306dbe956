#include "pdfpages.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {
QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return QByteArray();
    return process.readAllStandardOutput();
}
} // namespace

namespace PdfPages {

QStringList text(const QString &pdf)
{
    const QString all = QString::fromUtf8(run("pdftotext", {"-layout", "-enc", "UTF-8", pdf, "-"}));
    QStringList pages = all.split('\f');
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty())
        pages.removeLast(); // the text ends with a page break
    return pages;
}

QImage image(const QString &pdf, int page, int dpi)
{
    QTemporaryDir dir;
    const QString prefix = dir.filePath("page");
    run("pdftoppm", {"-png", "-r", QString::number(dpi), "-f", QString::number(page), "-l", QString::number(page),
                     "-singlefile", pdf, prefix});
    return QImage(prefix + ".png");
}

} // namespace PdfPages
