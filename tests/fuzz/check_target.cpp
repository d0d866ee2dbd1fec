// The check of a job, whatever its bytes are, in a house that prints everything.

#include "collectedfindings.h"
#include "houseconfiguration.h"
#include "pvconfiguration.h"
#include "target.h"
#include "trickle.h"

#include <QStringDecoder>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The text of a job in plain UTF-8; null when it is anything else: then only the reader knows its places.
QString plainText(const QByteArray &job)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(job);
    const bool isPlain = !decoder.hasError() && !job.contains('\0') && !job.contains("encoding") &&
                         !text.contains(QChar(0xfffe)) && !text.contains(QChar(0xffff));
    return isPlain ? text : QString();
}

void requirePlaces(const CollectedFindings &findings, const QString &text)
{
    const QStringList lines = text.split(u'\n');
    for (const check::Finding &finding : findings.list) {
        require(finding.place.line >= 1 && finding.place.line <= lines.size(),
                "a finding names a line that is there");
        const qsizetype length = lines[finding.place.line - 1].toUcs4().size();
        require(finding.place.column >= 1 && finding.place.column <= length + 1,
                "a finding names a column that is there");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const CapturedOutput messages;
    static PVConfiguration configuration(houseConfiguration(), u"house.conf"_s);
    const QByteArray job(reinterpret_cast<const char *>(data), qsizetype(size));

    const CollectedFindings findings = findingsOf(job, configuration);
    require(findingsOf(job, configuration).asText() == findings.asText(),
            "the same job gives the same findings");
    const QString text = plainText(job);
    if (text.isNull())
        return 0;
    requirePlaces(findings, text);
    Trickle trickle(job);
    require(findingsOf(trickle, configuration).asText() == findings.asText(),
            "a job that comes in drops gives the same findings");
    return 0;
}
