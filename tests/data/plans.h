// Screens as tables of their controls, for measuring the texts that they show: what stands where, and which
// texts it takes.
#pragma once

#include "forms/units.h"

#include <QStringList>
#include <QWidget>

#include <memory>
#include <ostream>
#include <vector>

namespace plans {

enum class Kind { Label, Centred, Bold, Frame, Button, Other };

struct Planned {
    QString control;
    Kind kind;
    forms::Place place;
    QStringList keys; // of its texts, which show one at a time
};

struct Screen {
    const char *name;
    int width; // client area, twips
    int height;
    QString caption; // key of the form's caption
    std::vector<Planned> controls;
};

// How GoogleTest shows a screen.
void PrintTo(const Screen &screen, std::ostream *out);

const std::vector<Screen> &screens();

// The screen with its controls in their places, labels without a text.
std::unique_ptr<QWidget> built(const Screen &screen);

} // namespace plans
