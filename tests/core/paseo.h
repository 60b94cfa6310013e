// A random walk through the operations on the catalogues and the notes, with the model that it is compared
// with: what it starts from and its steps.
#pragma once

#include "modelodecatalogos.h"

#include "core/altas.h"
#include "core/modulo.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

class Paseo : public testing::TestWithParam<unsigned> {
public:
    Paseo()
        : m_azar(GetParam())
    {
        MontaBase();
        MontaCatalogo();
        MontaNotas();
    }

    void AñadeSistema();
    void AñadeEmulador();
    void BorraEmulador();
    void BorraSistema();
    void CambiaExtensiones();
    void CambiaWebDeSistema();
    void CambiaWebDeEmulador();
    void Guarda();
    void QuitaSistema();
    void QuitaEmulador();
    void Describe();
    void DaParametros();
    void EscribeAMano();

protected:
    size_t Azar(size_t total) { return m_azar() % total; }
    QString Textos() const { return m_textoSye + m_textoEmu + m_textoRom; }

    int m_rechazados = 0; // names that weren't let in
    int m_cambiados = 0; // removals from what had changed since
    int m_atrasados = 0; // removals from another file than the one that was read

private:
    QString ConFin(const QString &linea);
    QString Propia();
    QStringList Propias();
    QString NombreNuevo(const QString &clase);
    QStringList Extensiones();
    core::EmuladorNuevo Configurado(const QString &nombre, const QString &web2);

    void MontaBase();
    SistemaDeBase SistemaAlAzar();
    void MontaCatalogo();
    void MontaNotas();

    void GuardaSistema(const SistemaDeBase &sistema, const EmuladorDeBase &emulador);
    void GuardaEmulador(SistemaDeCatalogo &sistema, const EmuladorDeBase &emulador);
    void GuardaCambios(EmuladorDeCatalogo &configurado, const EmuladorDeBase &emulador);
    void QuitaDelModelo(SistemaDeCatalogo &sistema, size_t cual);
    void LeeTablas();
    bool EsElLeido(size_t fila);
    void QuitaDeNotas(const QString &sistema);

    SistemaDeBase *SistemaConEmuladores();
    EmuladorDeCatalogo *EmuladorConfigurado(const QString &nombre);
    void PonEmu(const QString &texto)
    {
        m_textoEmu = texto;
        ASSERT_EQ(m_textoEmu, TextoDe(m_emu));
    }
    void PonSye(const QString &texto)
    {
        m_textoSye = texto;
        ASSERT_EQ(m_textoSye, TextoDe(m_sye));
    }
    void PonRom(const QString &texto)
    {
        m_textoRom = texto;
        ASSERT_EQ(m_textoRom, TextoDe(m_rom));
    }

    std::mt19937 m_azar;
    int m_nombres = 0;
    Fichero<SistemaDeBase> m_sye;
    Fichero<SistemaDeCatalogo> m_emu;
    FicheroDeNotas m_rom;
    QString m_textoSye;
    QString m_textoEmu;
    QString m_textoRom;

    // What the other copy has read.
    std::unique_ptr<core::Modulo> m_tablas;
    Fichero<SistemaDeCatalogo> m_leido;
};
