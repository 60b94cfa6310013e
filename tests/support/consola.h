// What a console leaves open behind its program, for tests of what closes it.
#pragma once

#include "host/windows.h"

#include <QCloseEvent>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

// A window of this title, which counts how often it was asked to close, and stays.
class Consola : public QWidget {
public:
    explicit Consola(const QString &titulo, std::function<void()> alCerrar = {})
        : m_alCerrar(std::move(alCerrar))
    {
        setWindowTitle(titulo);
        show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return host::findWindow(titulo) != 0; }));
    }
    int cierres = 0;

protected:
    void closeEvent(QCloseEvent *evento) override
    {
        ++cierres;
        if (m_alCerrar)
            m_alCerrar();
        evento->ignore();
    }

private:
    std::function<void()> m_alCerrar;
};
