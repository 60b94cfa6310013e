// The screens of the options as the program builds them, each with its words.
#pragma once

#include "core/modulo.h"

#include "mainscreen/portada.h"

#include "options/acercade.h"
#include "options/opciones1.h"
#include "options/opciones2.h"
#include "options/utilidades.h"

#include <vector>

class OptionScreens {
public:
    // In the language of this file under LNG in the program's directory.
    OptionScreens(core::Modulo &M, const QString &language);

    const std::vector<forms::Form *> &all() const { return m_all; }

private:
    mainscreen::Portada m_portada;
    forms::FormHolder<options::Opciones1> m_opciones1;
    std::unique_ptr<options::Opciones2> m_opciones2;
    std::unique_ptr<options::Utilidades> m_utilidades;
    std::unique_ptr<options::AcercaDe> m_acercaDe;
    std::vector<forms::Form *> m_all;
};
