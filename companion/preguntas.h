// The plain questions of a launch on a terminal. Without one to answer, the answer is no.
#pragma once

#include "companion/sesion.h"

#include "host/questions.h"

namespace companion {

// In force while it stands.
class PreguntasDeTexto : public host::Questions {
public:
    explicit PreguntasDeTexto(const Sesion &sesion);
    ~PreguntasDeTexto() override;
    PreguntasDeTexto(const PreguntasDeTexto &) = delete;
    PreguntasDeTexto &operator=(const PreguntasDeTexto &) = delete;

    QString askText(const QString &prompt) override;
    Answer askYesNoCancel(const QString &title, const QString &text) override;
    bool askYesNo(const QString &title, const QString &text) override;
    void tell(const QString &title, const QString &text) override;
    [[noreturn]] void endWithError(const QString &title, const QString &text) override;
    [[noreturn]] void endProcess(int status) override;

private:
    const Sesion &m_sesion;
};

} // namespace companion
