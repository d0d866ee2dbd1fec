// The check of a configuration, whatever its bytes are, against what the reader makes of them.

#include "configfile.h"
#include "configurationfindings.h"
#include "configurationtext.h"
#include "configurationxml.h"
#include "libconfig.h"
#include "settingsinforce.h"
#include "target.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class NoSink : public check::FindingSink
{
public:
    void take(const check::Finding & /*finding*/) override {}
};

void requireTheReadersValues(const check::SettingsInForce &settings, const QByteArray &content,
                             const QString &form)
{
    libconfig::Config configuration;
    configuration.readContent(content, u"fuzz"_s, form);
    for (const knownkeys::Key &key : knownkeys::all()) {
        require(settings.textOf(key.name) == configuration.lookup(key.name),
                "the value that counts is the one that a look-up finds");
    }
}

void requirePlaces(const ConfigurationFindings &findings, const QByteArray &content)
{
    const QByteArrayList lines = content.split('\n');
    for (const check::Finding &finding : findings.list) {
        require(finding.place.line >= 1 && finding.place.line <= lines.size(),
                "a finding names a line that is there");
        require(finding.place.column >= 1 && finding.place.column <= lines[finding.place.line - 1].size() + 1,
                "a finding names a column that is there");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), qsizetype(size));
    const bool isXml = form::isXml(content);
    const ConfigurationFindings findings(content);
    if (!isXml)
        requirePlaces(findings, content);
    require(ConfigurationFindings(content).asText() == findings.asText(),
            "the same configuration gives the same findings");

    NoSink sink;
    check::SettingsInForce text;
    check::checkConfigurationText(content, text, sink);
    requireTheReadersValues(text, content, form::text);
    if (isXml) {
        check::SettingsInForce xml;
        check::checkConfigurationXml(content, xml, sink);
        requireTheReadersValues(xml, content, form::xml);
    }
    return 0;
}
