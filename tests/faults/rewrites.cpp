#include "rewrites.h"

#include "tests/core/catalogosdeprueba.h"

#include "companion/mudanza.h"

#include "core/ajustes.h"
#include "core/altas.h"
#include "core/bajas.h"
#include "core/descripciones.h"
#include "core/notas.h"
#include "core/remiendos.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace faults {

namespace {

const QString Cfg = u"Zembro.cfg"_s;
const QString Sye = u"Zembro.sye"_s;
const QString Emu = u"Zembro.emu"_s;
const QString Rom = u"Zembro.rom"_s;

using Text = const QString &;

core::EmuladorNuevo emulator(const QString &name)
{
    return { name, u"WEB2=http://w"_s, u"/usr/bin/emu"_s, u"3"_s, u"/roms"_s, u"/captures/"_s, u"-a b"_s,
        u" -c"_s };
}

std::vector<Rewrite> ofTheSettings()
{
    using core::Ajuste;
    const auto setting = [](Ajuste which, const QStringList &lines) {
        return Step { Cfg, [=](Text text) { return core::ConAjuste(text, which, lines); }, {} };
    };
    return {
        { "last selection", { setting(Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(3, 4)) } },
        { "settings one by one",
            { setting(Ajuste::GuardarUltimo, { core::LineaDeGuardarUltimo(0) }),
                setting(Ajuste::TypeOfEditor, { core::LineaDeEditor(2) }),
                setting(Ajuste::MsgEndDOS, { core::LineaDeMsgEndDOS(u"The end"_s) }),
                setting(Ajuste::LanguageFile, { core::LineaDeIdioma(u"ZB-DEU.LNG"_s) }) } },
        { "filters",
            { { Cfg,
                [](Text text) {
                    return core::ConFiltros(text, { u"CFG"_s, u"NEW"_s });
                },
                {} } } },
        { "first run", { { Cfg, {}, core::AjustesPorDefecto(u"ZB-ITA.LNG"_s) } } },
    };
}

std::vector<Rewrite> ofTheDatabase()
{
    const QStringList extensions { u"*.A26"_s, u"*.BIN"_s };
    const auto inBoth = [](const std::function<QString(Text)> &change) {
        return std::vector<Step> { { Sye, change, {} }, { Emu, change, {} } };
    };
    return {
        { "new system",
            { { Sye, [](Text text) { return core::ConSistemaEnBase(text, u"New"_s); }, {} },
                { Rom, [](Text text) { return core::ConSistemaNuevo(text, u"New"_s); }, {} } } },
        { "new emulator",
            { { Sye, [](Text text) { return core::ConEmuladorEnBase(text, u"-Beta"_s, u"New"_s); }, {} } } },
        { "emulator's removal",
            { { Sye, [](Text text) { return core::SinEmuladorEnBase(text, u"Gamma"_s, u"G2"_s); }, {} } } },
        { "system's removal",
            { { Rom, [](Text text) { return core::SinParametrosDeSistema(text, u"Beta"_s); }, {} },
                { Sye, [](Text text) { return core::SinSistema(text, u"Beta"_s); }, {} },
                { Rom, [](Text text) { return core::SinNotasDeSistema(text, u"Beta"_s); }, {} } } },
        { "extensions",
            inBoth([=](Text text) { return core::ConExtensiones(text, u"Alfa"_s, extensions); }) },
        { "system's address",
            inBoth([](Text text) { return core::ConWebDeSistema(text, u"Alfa"_s, u"http://new"_s); }) },
        { "emulator's address", inBoth([](Text text) {
             return core::ConWebDeEmulador(text, u"Gamma"_s, u"G1"_s, u"http://new"_s);
         }) },
    };
}

std::vector<Rewrite> ofTheCatalogue()
{
    const auto change = [](const std::string &name, const std::function<QString(Text)> &how) {
        return Rewrite { name, { { Emu, how, {} } } };
    };
    return {
        change("first emulator of a system",
            [](Text text) {
                return core::ConSistemaConfigurado(
                    text, { u"New"_s, u"WEB1="_s, { u"*.ZIP"_s }, emulator(u"N1"_s) });
            }),
        change("further emulator",
            [](Text text) { return core::ConEmuladorConfigurado(text, u"-Beta"_s, emulator(u"B2"_s)); }),
        change(
            "changed emulator", [](Text text) { return core::ConEmuladorCambiado(text, emulator(u"G1"_s)); }),
        change("configured system's removal", [](Text text) { return core::SinSistema(text, u"Alfa"_s); }),
        change("only emulator's removal", [](Text text) { return core::SinUnicoEmulador(text, u"Beta"_s); }),
        change("removal of one of several", [](Text text) { return core::SinEmulador(text, u"G1"_s); }),
        change("last emulator's removal",
            [](Text text) { return core::SinUltimoEmulador(text, u"Gamma"_s, 2); }),
    };
}

std::vector<Rewrite> ofTheNotes()
{
    const auto change = [](const std::string &name, const std::function<QString(Text)> &how) {
        return Rewrite { name, { { Rom, how, {} } } };
    };
    const core::Parametros parameters { u"GAME.BIN"_s, u"Beta"_s, u"B1"_s, u"-new"_s };
    return {
        change("new description",
            [](Text text) {
                return core::ConDescripcionNueva(text, u"Alfa"_s, u"NEW.BIN"_s, u"A new one"_s);
            }),
        change("changed description",
            [](Text text) {
                return core::ConDescripcionCambiada(text, u"A game"_s, u"GAME.BIN"_s, u"Another €"_s);
            }),
        change("new parameters", [=](Text text) { return core::ConParametrosNuevos(text, parameters); }),
        change(
            "changed parameters", [=](Text text) { return core::ConParametrosCambiados(text, parameters); }),
    };
}

// What zembro makes.
std::vector<Rewrite> ofTheCommandLine()
{
    const QString broken = QString::fromLatin1(Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" })
        + SistemaDe(CabezaBeta, { "B1" }).chopped(Cierre.size()))
                               .replace(u"ROM=/roms/A1/"_s, u"ROM=/roms/A1"_s);
    const auto mend = [](Text text) {
        return core::ConMarcaFinal(core::ConBloquesCerrados(
            core::ConSeparadoresFinales(text, [](Text) { return core::EnDisco::Nada; })));
    };
    const auto describe = [](Text text) {
        return core::ConDescripciones(text, u"Alfa"_s,
            { { u"NEW.BIN"_s, u"New"_s }, { u"GAME.BIN"_s, u"Another"_s } }, core::LasQueHay::Cambian)
            .texto;
    };
    const auto move = [](Text text) {
        return companion::ConRutasMudadas(text, u"/roms"_s, u"/media/ñ"_s, u"/here"_s);
    };
    return {
        { "mended catalogue", { { Emu, {}, broken }, { Emu, mend, {} } } },
        { "mended notes",
            { { Rom,
                [](Text text) {
                    return core::ConNotasCerradas(text, { u"Alfa"_s, u"GAME.BIN,\"A game\""_s });
                },
                {} } } },
        { "descriptions in bulk", { { Rom, describe, {} } } },
        { "moved paths", { { Emu, move, {} } } },
        { "copy brought back",
            { { Cfg, {}, u"cfg\r\n"_s }, { Emu, {}, u"emu\r\n"_s }, { Rom, {}, u"rom\r\n"_s } } },
    };
}

} // namespace

std::vector<Rewrite> rewrites()
{
    std::vector<Rewrite> all;
    for (const auto &some :
        { ofTheSettings(), ofTheDatabase(), ofTheCatalogue(), ofTheNotes(), ofTheCommandLine() })
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

Files filesToRewrite()
{
    const QByteArray notes =
        "' notes \xF1\r\nAlfa\r\nGAME.BIN,\"A game\"\r\n'\r\nBeta\r\nB.BIN,\"b\"\r\n'\r\n"
        "[EOF]\r\nParametros especificos\r\nGAME.BIN,Beta,B1,-old\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
    return {
        { "Zembro.cfg", core::AjustesPorDefecto(u"ZB-ESP.LNG"_s).toLatin1() },
        { "Zembro.sye", Cabecera + Alfa + Beta + Gamma + Fin },
        { "Zembro.emu",
            Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" }) + SistemaDe(CabezaBeta, { "B1" })
                + SistemaDe(CabezaGamma, { "G1", "G2" }) + Fin },
        { "Zembro.rom", notes },
    };
}

void make(const Step &step, host::NumberedFiles &files)
{
    const QString path = host::programFile(step.file);
    if (step.change)
        files.rewrite(path, u"Zembro.tmp"_s, step.change);
    else
        files.replace(path, u"Zembro.tmp"_s, step.text);
}

} // namespace faults
