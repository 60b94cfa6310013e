#include "companion/palabras.h"

#include "core/textos.h"

#include <QHash>

namespace companion {

std::span<const ClaveDePalabra> ClavesDePalabras()
{
    using P = Palabras;
    static constexpr ClaveDePalabra claves[] = {
        { u"Zbo_Uso", &P::Zbo_Uso },
        { u"Zbo_Ordenes", &P::Zbo_Ordenes },
        { u"Zbo_Opciones", &P::Zbo_Opciones },
        { u"Zbo_MasAyuda", &P::Zbo_MasAyuda },
        { u"Zbo_OpDir", &P::Zbo_OpDir },
        { u"Zbo_OpJson", &P::Zbo_OpJson },
        { u"Zbo_OpAyuda", &P::Zbo_OpAyuda },
        { u"Zbo_OpVersion", &P::Zbo_OpVersion },
        { u"Zbo_Help", &P::Zbo_Help },
        { u"Zbo_NoOrden", &P::Zbo_NoOrden },
        { u"Zbo_NoOpcion", &P::Zbo_NoOpcion },
        { u"Zbo_NoValor", &P::Zbo_NoValor },
        { u"Zbo_SinValor", &P::Zbo_SinValor },
        { u"Zbo_NoDir", &P::Zbo_NoDir },
        { u"Zbo_NoSistema", &P::Zbo_NoSistema },
        { u"Zbo_NoEmulador", &P::Zbo_NoEmulador },
        { u"Zbo_NoJuego", &P::Zbo_NoJuego },
        { u"Zbo_Varios", &P::Zbo_Varios },
        { u"Zbo_Cuales", &P::Zbo_Cuales },
        { u"Zbo_List", &P::Zbo_List },
        { u"Zbo_Command", &P::Zbo_Command },
        { u"Zbo_OpLines", &P::Zbo_OpLines },
        { u"Zbo_OpShell", &P::Zbo_OpShell },
        { u"Zbo_LaOrden", &P::Zbo_LaOrden },
        { u"Zbo_EnDir", &P::Zbo_EnDir },
        { u"Zbo_ElTexto", &P::Zbo_ElTexto },
        { u"Zbo_Desempaqueta", &P::Zbo_Desempaqueta },
        { u"Zbo_Ilegible", &P::Zbo_Ilegible },
        { u"Zbo_YaEsta", &P::Zbo_YaEsta },
        { u"Zbo_SeBorraDir", &P::Zbo_SeBorraDir },
        { u"Zbo_SeBorran", &P::Zbo_SeBorran },
        { u"Zbo_SeQueda", &P::Zbo_SeQueda },
        { u"Zbo_NoArranca", &P::Zbo_NoArranca },
        { u"Zbo_NadaSeLanza", &P::Zbo_NadaSeLanza },
        { u"Zbo_SinPrograma", &P::Zbo_SinPrograma },
        { u"Zbo_Play", &P::Zbo_Play },
        { u"Zbo_Why", &P::Zbo_Why },
        { u"Zbo_SinLineas", &P::Zbo_SinLineas },
        { u"Zbo_SinPartida", &P::Zbo_SinPartida },
        { u"Zbo_Partida", &P::Zbo_Partida },
        { u"Zbo_PorSenal", &P::Zbo_PorSenal },
        { u"Zbo_ConEstado", &P::Zbo_ConEstado },
        { u"Zbo_SinFinal", &P::Zbo_SinFinal },
        { u"Zbo_Check", &P::Zbo_Check },
        { u"Zbo_OpMend", &P::Zbo_OpMend },
        { u"Zbo_OpWrite", &P::Zbo_OpWrite },
        { u"Zbo_MendTodo", &P::Zbo_MendTodo },
        { u"Zbo_WriteMend", &P::Zbo_WriteMend },
        { u"Zbo_NoLeida", &P::Zbo_NoLeida },
        { u"Zbo_Repetido", &P::Zbo_Repetido },
        { u"Zbo_ExtLarga", &P::Zbo_ExtLarga },
        { u"Zbo_SinCierre", &P::Zbo_SinCierre },
        { u"Zbo_SinMarca", &P::Zbo_SinMarca },
        { u"Zbo_SinApostrofo", &P::Zbo_SinApostrofo },
        { u"Zbo_SinNotas", &P::Zbo_SinNotas },
        { u"Zbo_SinSeccion", &P::Zbo_SinSeccion },
        { u"Zbo_Cortado", &P::Zbo_Cortado },
        { u"Zbo_SinFichero", &P::Zbo_SinFichero },
        { u"Zbo_MalAjuste", &P::Zbo_MalAjuste },
        { u"Zbo_SinBlanco", &P::Zbo_SinBlanco },
        { u"Zbo_LineaCorta", &P::Zbo_LineaCorta },
        { u"Zbo_SinClave", &P::Zbo_SinClave },
        { u"Zbo_NoHayEXE", &P::Zbo_NoHayEXE },
        { u"Zbo_Parecido", &P::Zbo_Parecido },
        { u"Zbo_SinPermiso", &P::Zbo_SinPermiso },
        { u"Zbo_OtraMaquina", &P::Zbo_OtraMaquina },
        { u"Zbo_NoEsPrograma", &P::Zbo_NoEsPrograma },
        { u"Zbo_SinROMs", &P::Zbo_SinROMs },
        { u"Zbo_SinTipo", &P::Zbo_SinTipo },
        { u"Zbo_ListaCortada", &P::Zbo_ListaCortada },
        { u"Zbo_NoSeLista", &P::Zbo_NoSeLista },
        { u"Zbo_DosVeces", &P::Zbo_DosVeces },
        { u"Zbo_NadaEncaja", &P::Zbo_NadaEncaja },
        { u"Zbo_MismaDesc", &P::Zbo_MismaDesc },
        { u"Zbo_SinCapturas", &P::Zbo_SinCapturas },
        { u"Zbo_CapturaSola", &P::Zbo_CapturaSola },
        { u"Zbo_CapturaMal", &P::Zbo_CapturaMal },
        { u"Zbo_Cuenta", &P::Zbo_Cuenta },
        { u"Zbo_ParPerdidos", &P::Zbo_ParPerdidos },
        { u"Zbo_Find", &P::Zbo_Find },
        { u"Zbo_OpAll", &P::Zbo_OpAll },
        { u"Zbo_Configurado", &P::Zbo_Configurado },
        { u"Zbo_SeHaria", &P::Zbo_SeHaria },
        { u"Zbo_Reinicia", &P::Zbo_Reinicia },
        { u"Zbo_NadaMas", &P::Zbo_NadaMas },
        { u"Zbo_NadaNuevo", &P::Zbo_NadaNuevo },
        { u"Zbo_OpCompletion", &P::Zbo_OpCompletion },
        // Bulk work.
        { u"Zbo_NadaCambia", &P::Zbo_NadaCambia },
        { u"Zbo_NoHay", &P::Zbo_NoHay },
        { u"Zbo_Move", &P::Zbo_Move },
        { u"Zbo_OpOld", &P::Zbo_OpOld },
        { u"Zbo_OpNew", &P::Zbo_OpNew },
        { u"Zbo_MuevePide", &P::Zbo_MuevePide },
        { u"Zbo_MueveVarios", &P::Zbo_MueveVarios },
        { u"Zbo_Moveria", &P::Zbo_Moveria },
        { u"Zbo_Movido", &P::Zbo_Movido },
        { u"Zbo_Save", &P::Zbo_Save },
        { u"Zbo_Restore", &P::Zbo_Restore },
        { u"Zbo_OpList", &P::Zbo_OpList },
        { u"Zbo_Guardado", &P::Zbo_Guardado },
        { u"Zbo_YaGuardado", &P::Zbo_YaGuardado },
        { u"Zbo_NoCopia", &P::Zbo_NoCopia },
        { u"Zbo_NoCopias", &P::Zbo_NoCopias },
        { u"Zbo_Repondria", &P::Zbo_Repondria },
        { u"Zbo_Repuesto", &P::Zbo_Repuesto },
        { u"Zbo_Describe", &P::Zbo_Describe },
        { u"Zbo_OpFrom", &P::Zbo_OpFrom },
        { u"Zbo_OpTags", &P::Zbo_OpTags },
        { u"Zbo_OpReplace", &P::Zbo_OpReplace },
        { u"Zbo_Describiria", &P::Zbo_Describiria },
        { u"Zbo_Descrito", &P::Zbo_Descrito },
        { u"Zbo_NoClave", &P::Zbo_NoClave },
        { u"Zbo_Repetida", &P::Zbo_Repetida },
        { u"Zbo_NoCabe", &P::Zbo_NoCabe },
        { u"Zbo_ListaMala", &P::Zbo_ListaMala },
        { u"Zbo_Export", &P::Zbo_Export },
        { u"Zbo_OpPegasus", &P::Zbo_OpPegasus },
        { u"Zbo_OpTo", &P::Zbo_OpTo },
        { u"Zbo_NoExporta", &P::Zbo_NoExporta },
        { u"Zbo_Escrito", &P::Zbo_Escrito },
        { u"Zbo_NoUnidad", &P::Zbo_NoUnidad },
        { u"Zbo_SinSitio", &P::Zbo_SinSitio },
        { u"Zbo_CorreEn", &P::Zbo_CorreEn },
        { u"Zbo_LineaDOS", &P::Zbo_LineaDOS },
    };
    return claves;
}

namespace {

QHash<QString, QString Palabras::*> porClaveRellena()
{
    QHash<QString, QString Palabras::*> tabla;
    for (const ClaveDePalabra &clave : ClavesDePalabras())
        tabla.insert(clave.nombre.toString().leftJustified(core::AnchoClave, u'.'), clave.variable);
    return tabla;
}

} // namespace

void LeePalabra(Palabras &palabras, const QString &linea)
{
    static const QHash<QString, QString Palabras::*> claves = porClaveRellena();

    if (const auto variable = claves.value(linea.left(core::AnchoClave)))
        palabras.*variable = core::TextoDeLinea(linea);
}

} // namespace companion
