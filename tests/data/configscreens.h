// The screens of configuring as the program builds them, each with its words.
#pragma once

#include "core/modulo.h"

#include "dialogs/examinar.h"

#include "mainscreen/portada.h"

#include "maintenance/configuracion1.h"
#include "maintenance/configuracion2.h"

#include <memory>
#include <vector>

class ConfigScreens {
public:
    // In the language of this file under LNG in the program's directory. The second step stands there once
    // for each kind of system, the browser as narrow as it is for picking a directory.
    ConfigScreens(core::Modulo &M, const QString &language);

    const std::vector<forms::Form *> &all() const { return m_all; }

private:
    void makeSecondStep(core::Modulo &M, int origin);

    mainscreen::Portada m_portada;
    forms::FormHolder<dialogs::Examinar> m_examinar;
    std::unique_ptr<maintenance::Configuracion1> m_first;
    std::vector<std::unique_ptr<maintenance::Configuracion2>> m_second;
    std::vector<forms::Form *> m_all;
};
