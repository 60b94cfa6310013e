#include "sources.h"

#include "core/catalogo.h"

#include "host/encoding.h"

#include <gtest/gtest.h>

#include <QFile>

#include <memory>

using namespace Qt::StringLiterals;

namespace sources {

QStringList lines(const QString &name)
{
    QFile file(QStringLiteral(DATA_SOURCES) + u'/' + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    const QByteArray bytes = file.readAll();
    const QString text = QString::fromUtf8(bytes);
    EXPECT_EQ(text.toUtf8(), bytes) << name.toStdString() << " isn't UTF-8";
    EXPECT_FALSE(text.contains(u'\r')) << name.toStdString();
    EXPECT_TRUE(text.endsWith(u'\n')) << name.toStdString();
    return text.chopped(1).replace(u"@VERSION@"_s, QStringLiteral(ZEMBROLIX_VERSION)).split(u'\n');
}

QString delivered(const QString &name)
{
    return lines(name).join(u"\r\n"_s) + u"\r\n"_s;
}

bool survivesDelivery(const QString &text)
{
    const host::DecodedText read = host::decodeText(host::encodeText({ text }));
    return read.encoding == host::Encoding::Windows1252 && read.text == text;
}

namespace {

System systemOf(const core::Modulo &M, int index)
{
    System system;
    system.name = core::Valor(M.Cat_Nombre(index, 0), 1);
    system.web = core::Valor(M.Cat_WEB1(index), core::PrefijoParametro);
    for (int k = 0; !M.Cat_EXT(index, k).isEmpty(); ++k)
        system.extensions += core::Valor(M.Cat_EXT(index, k), 2);
    for (int e = 1; e <= core::TotalEmuladores(M, index); ++e) {
        system.emulators += core::Valor(M.Cat_Nombre(index, e), 1);
        system.emulatorWebs += core::Valor(M.Cat_WEB2(index, e), core::PrefijoParametro);
    }
    return system;
}

} // namespace

std::vector<System> systems(const QString &name)
{
    const auto M = std::make_unique<core::Modulo>();
    core::LectorDeCatalogo reader(*M);
    for (const QString &line : lines(name))
        reader.Linea(line);
    std::vector<System> found;
    for (int index = 0; index <= M->Indice_Sistema; ++index)
        found.push_back(systemOf(*M, index));
    return found;
}

} // namespace sources
