#include "companion/completado.h"

#include "companion/ordenes.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

std::vector<Opcion> opcionesDe(const Orden &orden)
{
    std::vector<Opcion> todas = orden.opciones;
    todas.insert(todas.end(), OpcionesComunes().begin(), OpcionesComunes().end());
    return todas;
}

QString nombresDe(const std::vector<Opcion> &opciones)
{
    QStringList nombres;
    for (const Opcion &opcion : opciones)
        nombres += u"--"_s + opcion.nombre;
    return nombres.join(u' ');
}

QString nombresDeOrdenes()
{
    QStringList nombres;
    for (const Orden *orden : Ordenes())
        nombres += orden->nombre;
    return nombres.join(u' ');
}

// Options of any command whose value is of that kind: a directory or a file.
QString conValor(const QString &valor)
{
    QStringList nombres;
    for (const Orden *orden : Ordenes()) {
        for (const Opcion &opcion : opcionesDe(*orden)) {
            if (opcion.valor == valor)
                nombres += u"--"_s + opcion.nombre;
        }
    }
    nombres.removeDuplicates();
    return nombres.join(u'|');
}

bool esFichero(const Opcion &opcion)
{
    return opcion.valor == u"FILE" || opcion.valor == u"DIR" || opcion.valor == u"DIRECTORY";
}

QString entreComillas(QString texto)
{
    return u'\'' + texto.replace(u'\'', u"'\\''"_s) + u'\'';
}

} // namespace

QString ParaBash()
{
    QString texto =
        u"# Completion of zembro for bash. Made by: zembro help --completion bash\n"
        "_zembro()\n{\n"
        "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= i\n"
        "    for ((i = 1; i < COMP_CWORD; ++i)); do\n"
        "        case ${COMP_WORDS[i]} in\n"
        "        --directory) ((++i)) ;;\n"
        "        -*) ;;\n"
        "        *)\n            command=${COMP_WORDS[i]}\n            break\n            ;;\n"
        "        esac\n    done\n"
        "    case $before in\n"_s;
    // Where one command takes a file and another a directory, files go ahead: directories are among them.
    const QString ficheros = conValor(u"FILE"_s);
    if (!ficheros.isEmpty())
        texto += u"    "_s + ficheros + u") mapfile -t COMPREPLY < <(compgen -f -- \"$word\"); return ;;\n"_s;
    texto += u"    "_s + conValor(u"DIR"_s)
        + u") mapfile -t COMPREPLY < <(compgen -d -- \"$word\"); return ;;\n"_s;
    texto += u"    esac\n    local words=\n    case $command in\n"_s;
    texto += u"    '') words='"_s + nombresDeOrdenes() + u" --version "_s + nombresDe(OpcionesComunes())
        + u"' ;;\n"_s;
    for (const Orden *orden : Ordenes()) {
        const QString mas = orden->nombre == u"help" ? nombresDeOrdenes() + u' ' : QString();
        texto +=
            u"    "_s + orden->nombre + u") words='"_s + mas + nombresDe(opcionesDe(*orden)) + u"' ;;\n"_s;
    }
    return texto
        + u"    esac\n    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\")\n}\n"
          "complete -F _zembro zembro\n"_s;
}

QString ParaZsh()
{
    const Palabras palabras;
    QString texto =
        u"#compdef zembro\n# Completion of zembro for zsh. Made by: zembro help --completion zsh\n"
        "_zembro() {\n    local -a commands options\n    commands=(\n"_s;
    for (const Orden *orden : Ordenes())
        texto += u"        "_s + entreComillas(orden->nombre + u':' + palabras.*orden->ayuda) + u'\n';
    texto +=
        u"    )\n    if ((CURRENT == 2)); then\n        _describe command commands\n        return\n    fi\n"
        "    case $words[2] in\n"_s;
    for (const Orden *orden : Ordenes()) {
        texto += u"    "_s + orden->nombre + u") options=(\n"_s;
        for (const Opcion &opcion : opcionesDe(*orden)) {
            const QString valor = opcion.valor.isEmpty() ? QString()
                : esFichero(opcion)                      ? u':' + opcion.valor + u":_files"_s
                                                         : u':' + opcion.valor + u": "_s;
            texto += u"        "_s
                + entreComillas(u"--"_s + opcion.nombre + u'[' + palabras.*opcion.ayuda + u']' + valor)
                + u'\n';
        }
        texto += u"    ) ;;\n"_s;
    }
    return texto + u"    esac\n    _arguments $options '*: :'\n}\n_zembro \"$@\"\n"_s;
}

QString ParaFish()
{
    const Palabras palabras;
    QString texto = u"# Completion of zembro for fish. Made by: zembro help --completion fish\n"
                    "complete -c zembro -f\ncomplete -c zembro -n __fish_use_subcommand -l version -d "_s
        + entreComillas(palabras.Zbo_OpVersion) + u'\n';
    for (const Orden *orden : Ordenes()) {
        texto += u"complete -c zembro -n __fish_use_subcommand -a "_s + orden->nombre + u" -d "_s
            + entreComillas(palabras.*orden->ayuda) + u'\n';
        for (const Opcion &opcion : orden->opciones)
            texto += u"complete -c zembro -n '__fish_seen_subcommand_from "_s + orden->nombre + u"' -l "_s
                + opcion.nombre + (opcion.valor.isEmpty() ? QString() : u" -r"_s)
                + (esFichero(opcion) ? u" -F"_s : QString()) + u" -d "_s
                + entreComillas(palabras.*opcion.ayuda) + u'\n';
    }
    for (const Opcion &opcion : OpcionesComunes())
        texto += u"complete -c zembro -l "_s + opcion.nombre
            + (opcion.valor.isEmpty() ? QString() : u" -r -F"_s) + u" -d "_s
            + entreComillas(palabras.*opcion.ayuda) + u'\n';
    return texto;
}

namespace {

QString paraMan(QString texto)
{
    return texto.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s).replace(u'\'', u"\\(aq"_s);
}

QString deOpcion(const Opcion &opcion, const Palabras &palabras)
{
    const QString valor = opcion.valor.isEmpty() ? QString() : u" \\fI"_s + opcion.valor + u"\\fR"_s;
    return u".TP\n\\fB\\-\\-"_s + opcion.nombre + u"\\fR"_s + valor + u'\n' + paraMan(palabras.*opcion.ayuda)
        + u'\n';
}

} // namespace

QString PaginaMan()
{
    const Palabras palabras;
    QString texto =
        u".\\\" Made by: zembro help --completion man\n"
        ".TH ZEMBRO 1 \"\" \"Zembrolix " ZEMBRO_VERSION "\" \"User commands\"\n"
        ".SH NAME\nzembro \\- checks, dry runs and bulk work for Zembrolix\n"
        ".SH SYNOPSIS\n.B zembro\n\\fICOMMAND\\fR ...\n"
        ".SH DESCRIPTION\nzembro stands beside Zembrolix in its directory. It tells what the program would "
        "do "
        "and why it did nothing, and changes the program's text files only where it is given \\-\\-write. "
        "SYSTEM, EMULATOR and ENTRY may be cut, and in any case, as long as one fits. \\-\\- ends the "
        "options: "
        "what stands behind it may begin with a hyphen.\n.SH COMMANDS\n"_s;
    for (const Orden *orden : Ordenes()) {
        texto += u".SS \"zembro "_s + orden->nombre
            + (orden->argumentos.isEmpty() ? QString() : u' ' + orden->argumentos) + u"\"\n"_s
            + paraMan(palabras.*orden->ayuda) + u'\n';
        for (const Opcion &opcion : orden->opciones)
            texto += deOpcion(opcion, palabras);
    }
    texto += u".SH OPTIONS\n"_s;
    for (const Opcion &opcion : OpcionesComunes())
        texto += deOpcion(opcion, palabras);
    texto += deOpcion({ u"version"_s, {}, &Palabras::Zbo_OpVersion }, palabras);
    return texto
        + u".SH EXIT STATUS\n.TP\n0\nAll is well.\n.TP\n1\nSomething was found, or would be "
          u"changed.\n.TP\n2\nIt could not run.\n"
          ".PP\nzembro play ends with the status of the emulator, or with 128 and the number of the signal "
          "that ended it.\n"
          ".SH ENVIRONMENT\n.TP\nZEMBRO_LOG\nThe absolute path of a file that Zembrolix adds its lines to: "
          "what it started, and how "
          "that ended. zembro why reads it; without the variable, $XDG_STATE_HOME/zembrolix/log.\n"_s;
}

} // namespace companion
