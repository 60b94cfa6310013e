// The labels of the dialogs.
#pragma once

#include "forms/label.h"

namespace dialogs {

// A label of a dialog in its place, aligned to the top besides.
forms::Label *etiqueta(QWidget *padre, const QString &nombre, const QString &texto, const forms::Place &lugar,
    const QColor &color, const QFont &letra, Qt::Alignment alineacion);

// The word under a picture button.
forms::Label *palabra(QWidget *padre, const QString &nombre, const QString &texto, const forms::Place &lugar);

} // namespace dialogs
