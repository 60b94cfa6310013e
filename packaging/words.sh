# shellcheck shell=bash
# What the starters say to the user, in his language: sourced by them, wherever they stand. say KEY [VALUE...] prints the
# words of a key, with the values in the place of each %s. The language is that of the environment, as for the program;
# English, where it is none of these.
say() { # key, values...
    local key=$1 language=${LC_ALL:-${LC_MESSAGES:-${LANG:-}}} words
    shift
    words=$(words_of "$key" "${language%%[_.@]*}" || words_of "$key" en) || words=$key
    # shellcheck disable=SC2059
    printf "$words\n" "$@"
}
words_of() { # key, language
    local line found=
    while IFS= read -r line; do
        case $line in
        "[$1]") found=yes ;;
        "["*) [ -z "$found" ] || return 1 ;;
        "$2 "*) [ -z "$found" ] || { printf '%s' "${line#* }"; return 0; } ;;
        esac
    done <<'WORDS'
[not-directory]
en %s is no directory.
es %s no es un directorio.
it %s non è una cartella.
fr %s n'est pas un répertoire.
de %s ist kein Verzeichnis.
pt %s não é um diretório.
ca %s no és un directori.
[not-entered]
en %s can't be entered.
es No se puede entrar en %s.
it Non si può entrare in %s.
fr On ne peut pas entrer dans %s.
de %s kann nicht betreten werden.
pt Não se pode entrar em %s.
ca No es pot entrar a %s.
[not-written]
en %s can't be written.
es No se puede escribir en %s.
it Non si può scrivere in %s.
fr On ne peut pas écrire dans %s.
de In %s kann nicht geschrieben werden.
pt Não se pode escrever em %s.
ca No es pot escriure a %s.
[portable]
en %s is a portable one: start.sh --renew of a newer archive brings it up to date.
es %s es un directorio portátil: lo pone al día el start.sh --renew de un archivo más nuevo.
it %s è una cartella portatile: la aggiorna lo start.sh --renew di un archivio più nuovo.
fr %s est un répertoire portable : le start.sh --renew d'une archive plus récente le met à jour.
de %s ist ein tragbares Verzeichnis: start.sh --renew aus einem neueren Archiv bringt es auf den neuen Stand.
pt %s é um diretório portátil: é atualizado pelo start.sh --renew de um arquivo mais novo.
ca %s és un directori portàtil: el posa al dia l'start.sh --renew d'un arxiu més nou.
[not-configured]
en The emulators of this machine aren't configured.
es Los emuladores de esta máquina quedan sin configurar.
it Gli emulatori di questa macchina restano da configurare.
fr Les émulateurs de cette machine ne sont pas configurés.
de Die Emulatoren dieses Rechners sind nicht eingerichtet.
pt Os emuladores desta máquina ficam por configurar.
ca Els emuladors d'aquesta màquina queden sense configurar.
[configured]
en Configured %s
es Configurado: %s
it Configurato: %s
fr Configuré : %s
de Eingerichtet: %s
pt Configurado: %s
ca Configurat: %s
[both]
en %s holds files of yours too. They stay there, as %s is there already.
es También en %s hay ficheros tuyos. Se quedan ahí, pues %s ya existe.
it Anche in %s ci sono file tuoi. Restano lì, perché %s esiste già.
fr %s contient aussi des fichiers à vous. Ils y restent, car %s existe déjà.
de Auch in %s liegen Dateien von dir. Sie bleiben dort, denn %s gibt es schon.
pt Também em %s há ficheiros teus. Ficam aí, pois %s já existe.
ca També a %s hi ha fitxers teus. S'hi queden, ja que %s ja existeix.
[no-parent]
en %s can't be made: what you have in %s stays there.
es No se puede crear %s: lo que tienes en %s se queda ahí.
it Non si può creare %s: quello che hai in %s resta lì.
fr %s ne peut pas être créé : ce que vous avez dans %s y reste.
de %s kann nicht angelegt werden: Was du in %s hast, bleibt dort.
pt Não se pode criar %s: o que tens em %s fica aí.
ca No es pot crear %s: el que tens a %s s'hi queda.
[in-the-way]
en %s is in the way of moving %s to %s.
es %s impide trasladar %s a %s.
it %s impedisce di spostare %s in %s.
fr %s empêche de déplacer %s vers %s.
de %s steht im Weg, um %s nach %s zu verlegen.
pt %s impede que se mude %s para %s.
ca %s impedeix traslladar %s a %s.
[not-moved]
en %s can't be moved to %s: it stays where it is.
es %s no se puede trasladar a %s: se queda donde está.
it %s non si può spostare in %s: resta dov'è.
fr %s ne peut pas être déplacé vers %s : il reste où il est.
de %s kann nicht nach %s verlegt werden: Es bleibt, wo es ist.
pt %s não se pode mudar para %s: fica onde está.
ca %s no es pot traslladar a %s: es queda on és.
[copy-differs]
en The copy of %s differs from it, which stays where it is.
es La copia de %s es distinta; el original se queda donde está.
it La copia di %s è diversa; l'originale resta dov'è.
fr La copie de %s est différente ; l'original reste où il est.
de Die Kopie von %s weicht ab; das Original bleibt, wo es ist.
pt A cópia de %s é diferente; o original fica onde está.
ca La còpia de %s és diferent; l'original es queda on és.
[moved]
en What you had in %s is in %s now.
es Lo que tenías en %s está ahora en %s.
it Quello che avevi in %s è ora in %s.
fr Ce que vous aviez dans %s est maintenant dans %s.
de Was du in %s hattest, liegt jetzt in %s.
pt O que tinhas em %s está agora em %s.
ca El que tenies a %s és ara a %s.
[old-paths]
en The paths of its catalogue still lead to %s.
es Las rutas de su catálogo aún llevan a %s.
it I percorsi del suo catalogo portano ancora a %s.
fr Les chemins de son catalogue mènent encore à %s.
de Die Pfade seines Katalogs führen noch nach %s.
pt Os caminhos do seu catálogo ainda levam a %s.
ca Els camins del seu catàleg encara porten a %s.
[no-log]
en no line is kept on what is played: %s can't be made.
es no se anota a qué se juega: no se puede crear %s.
it non si annota a che cosa si gioca: non si può creare %s.
fr les parties ne sont pas notées : %s ne peut pas être créé.
de was gespielt wird, wird nicht aufgezeichnet: %s kann nicht angelegt werden.
pt não se anota o que se joga: não se pode criar %s.
ca no s'anota a què es juga: no es pot crear %s.
[no-home-named]
en There is no home directory: ./run.sh --directory DIR names another one.
es No hay directorio personal: ./run.sh --directory DIR indica otro.
it Non c'è una cartella personale: ./run.sh --directory DIR ne indica un'altra.
fr Il n'y a pas de répertoire personnel : ./run.sh --directory DIR en indique un autre.
de Es gibt kein persönliches Verzeichnis: ./run.sh --directory DIR nennt ein anderes.
pt Não há diretório pessoal: ./run.sh --directory DIR indica outro.
ca No hi ha directori personal: ./run.sh --directory DIR n'indica un altre.
[no-display]
en There is no display here: playing the demonstration game on a screen in memory instead.
es Aquí no hay pantalla: se juega a la demostración en una que solo está en memoria.
it Qui non c'è schermo: si gioca alla dimostrazione su uno che sta solo in memoria.
fr Il n'y a pas d'écran ici : la démonstration est jouée sur un écran en mémoire.
de Hier gibt es keinen Bildschirm: Die Demonstration wird auf einem im Speicher gespielt.
pt Aqui não há ecrã: joga-se a demonstração num que só está em memória.
ca Aquí no hi ha pantalla: es juga a la demostració en una que només és a la memòria.
[installing]
en Installing: %s
es Se instala: %s
it Si installa: %s
fr Installation : %s
de Wird installiert: %s
pt Instala-se: %s
ca S'instal·la: %s
[needs-root]
en Installing %s needs root or sudo.
es Para instalar %s hace falta ser root o tener sudo.
it Per installare %s bisogna essere root o avere sudo.
fr Pour installer %s, il faut être root ou avoir sudo.
de Um %s zu installieren, braucht es root oder sudo.
pt Para instalar %s é preciso ser root ou ter sudo.
ca Per instal·lar %s cal ser root o tenir sudo.
[no-home]
en There is no home directory ($HOME) to keep its directory in.
es No hay directorio personal ($HOME) en que guardar su directorio.
it Non c'è una cartella personale ($HOME) in cui tenere la sua cartella.
fr Il n'y a pas de répertoire personnel ($HOME) pour y garder son répertoire.
de Es gibt kein persönliches Verzeichnis ($HOME), in dem seines stehen könnte.
pt Não há diretório pessoal ($HOME) onde guardar o seu diretório.
ca No hi ha directori personal ($HOME) on desar el seu directori.
[not-made]
en Its directory can't be made. %s
es No se puede crear su directorio. %s
it Non si può creare la sua cartella. %s
fr Son répertoire ne peut pas être créé. %s
de Sein Verzeichnis kann nicht angelegt werden. %s
pt Não se pode criar o seu diretório. %s
ca No es pot crear el seu directori. %s
[not-renewed]
en Not all of its directory can be renewed. %s
es No todo su directorio se puede poner al día. %s
it Non tutta la sua cartella si può aggiornare. %s
fr Son répertoire ne peut pas être mis à jour en entier. %s
de Nicht alles in seinem Verzeichnis kann erneuert werden. %s
pt Nem todo o seu diretório pode ser atualizado. %s
ca No tot el seu directori es pot posar al dia. %s
[not-run]
en Programs in %s can't be run.
es En %s no se pueden ejecutar programas.
it In %s non si possono eseguire programmi.
fr Dans %s, aucun programme ne peut être exécuté.
de In %s können keine Programme ausgeführt werden.
pt Em %s não se podem executar programas.
ca A %s no es poden executar programes.
[no-terminal]
en No terminal is found to show the check in; in one of yours, zembro check does it.
es No se encuentra ningún terminal donde mostrar la comprobación; en uno tuyo la hace zembro check.
it Non si trova un terminale in cui mostrare il controllo; in uno dei tuoi lo fa zembro check.
fr Aucun terminal n'est trouvé pour montrer la vérification ; dans l'un des vôtres, zembro check la fait.
de Es findet sich kein Terminal, um die Prüfung zu zeigen; in einem deiner Terminals macht sie zembro check.
pt Não se encontra nenhum terminal onde mostrar a verificação; num dos teus, fá-la zembro check.
ca No es troba cap terminal on mostrar la comprovació; en un de teu la fa zembro check.
[set-aside]
en %s wasn't as it was delivered. It is %s now, beside the new one.
es %s no estaba como se entregó. Ahora es %s, junto al nuevo.
it %s non era come è stato consegnato. Ora è %s, accanto al nuovo.
fr %s n'était pas tel qu'il a été livré. C'est maintenant %s, à côté du nouveau.
de %s war nicht, wie es geliefert wurde. Es ist jetzt %s, neben dem neuen.
pt %s não estava como foi entregue. Agora é %s, junto do novo.
ca %s no era com es va lliurar. Ara és %s, al costat del nou.
[no-such-directory]
en there is no directory %s that can be entered.
es no hay ningún directorio %s en que se pueda entrar.
it non c'è una cartella %s in cui si possa entrare.
fr il n'y a pas de répertoire %s dans lequel on puisse entrer.
de es gibt kein Verzeichnis %s, das betreten werden kann.
pt não há nenhum diretório %s em que se possa entrar.
ca no hi ha cap directori %s on es pugui entrar.
[not-the-program]
en %s is no directory of the program.
es %s no es un directorio del programa.
it %s non è una cartella del programma.
fr %s n'est pas un répertoire du programme.
de %s ist kein Verzeichnis des Programms.
pt %s não é um diretório do programa.
ca %s no és un directori del programa.
[this-one]
en %s is this one.
es %s es este mismo.
it %s è proprio questa.
fr %s est celui-ci même.
de %s ist dieses hier.
pt %s é este mesmo.
ca %s és aquest mateix.
[stays]
en %s can't be written; it stays as it is.
es No se puede escribir en %s; se queda como está.
it Non si può scrivere in %s; resta com'è.
fr On ne peut pas écrire dans %s ; il reste tel qu'il est.
de In %s kann nicht geschrieben werden; es bleibt, wie es ist.
pt Não se pode escrever em %s; fica como está.
ca No es pot escriure a %s; es queda com és.
[not-exchanged]
en %s in %s can't be exchanged for the newer one. Once that is mended, renew it again.
es %s no se puede cambiar en %s por lo nuevo. Cuando eso se arregle, ponlo al día otra vez.
it %s non si può cambiare in %s con quello nuovo. Quando sarà rimediato, aggiornala di nuovo.
fr %s ne peut pas être échangé dans %s contre le nouveau. Une fois cela réparé, mettez-le à jour de nouveau.
de %s kann in %s nicht gegen das Neue getauscht werden. Ist das behoben, erneuere es noch einmal.
pt %s não se pode trocar em %s pelo novo. Quando isso se remediar, atualiza-o outra vez.
ca %s no es pot canviar a %s pel nou. Quan això s'arregli, posa'l al dia un altre cop.
[which-directory]
en which directory?
es ¿qué directorio?
it quale cartella?
fr quel répertoire ?
de welches Verzeichnis?
pt que diretório?
ca quin directori?
[no-programs-here]
en programs on this medium can't be run; copy the directory elsewhere.
es en este soporte no se pueden ejecutar programas; copia el directorio a otro sitio.
it su questo supporto non si possono eseguire programmi; copia la cartella altrove.
fr sur ce support, aucun programme ne peut être exécuté ; copiez le répertoire ailleurs.
de auf diesem Datenträger können keine Programme ausgeführt werden; kopiere das Verzeichnis woandershin.
pt neste suporte não se podem executar programas; copia o diretório para outro lugar.
ca en aquest suport no es poden executar programes; copia el directori a un altre lloc.
[waits]
en another run of start.sh is at work in %s; this one waits for it.
es otro start.sh está trabajando en %s; este lo espera.
it un altro start.sh sta lavorando in %s; questo lo aspetta.
fr un autre start.sh est à l'œuvre dans %s ; celui-ci l'attend.
de ein anderes start.sh arbeitet gerade in %s; dieses wartet darauf.
pt outro start.sh está a trabalhar em %s; este espera por ele.
ca un altre start.sh treballa a %s; aquest l'espera.
[completing]
en the renewal of this directory was cut short; it is being completed.
es la puesta al día de este directorio quedó a medias; se está completando.
it l'aggiornamento di questa cartella è rimasto a metà; lo si sta completando.
fr la mise à jour de ce répertoire a été interrompue ; elle est en train d'être achevée.
de die Erneuerung dieses Verzeichnisses wurde unterbrochen; sie wird jetzt zu Ende geführt.
pt a atualização deste diretório ficou a meio; está a ser completada.
ca la posada al dia d'aquest directori va quedar a mitges; s'està completant.
[cut-short]
en the renewal of this directory was cut short. Nothing of yours is lost; start.sh --renew %s of the newer version completes it.
es la puesta al día de este directorio quedó a medias. Nada tuyo se ha perdido; la completa el start.sh --renew %s de la versión nueva.
it l'aggiornamento di questa cartella è rimasto a metà. Nulla di tuo è perso; lo completa lo start.sh --renew %s della versione nuova.
fr la mise à jour de ce répertoire a été interrompue. Rien de ce qui est à vous n'est perdu ; le start.sh --renew %s de la nouvelle version l'achève.
de die Erneuerung dieses Verzeichnisses wurde unterbrochen. Nichts von dir ist verloren; start.sh --renew %s der neueren Version führt sie zu Ende.
pt a atualização deste diretório ficou a meio. Nada teu se perdeu; completa-a o start.sh --renew %s da versão nova.
ca la posada al dia d'aquest directori va quedar a mitges. Res de teu no s'ha perdut; la completa l'start.sh --renew %s de la versió nova.
WORDS
    return 1
}
