// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Interlocutor.h"

#include <QTest>
#include <QtWidgets>
#include <functional>

// Tests write their texts as u"…"_s, and their windows have controls of every kind.
using namespace Qt::Literals::StringLiterals;

/// What the program said to the user or the desktop, instead of saying it. A box that no test
/// expects fails it.
class Grabadora : public Interlocutor
{
public:
    struct Mensaje
    {
        Icono icono;
        QString texto;
        QString titulo;
    };

    QList<Mensaje> mensajes;
    QStringList abiertas;        ///< addresses given to the desktop
    QList<QStringList> lanzadas; ///< programs asked for, the first of each list
    QStringList respuestas;      ///< answers to give, in order; empty text when they run out
    QStringList carpetasPedidas; ///< where the questions for a folder began; answered like the rest
    QStringList confirmaciones;  ///< questions asked for yes or no
    bool respondeSi = false;
    bool hayProgramas = true;
    QList<Guardado> guardados;         ///< answers about unsaved work, in order; then Cancelar
    QStringList preguntasSiGuarda;     ///< what was asked about it
    QList<Archivo> archivos;           ///< files that are chosen, in order; then none
    QList<QStringList> filtrosPedidos; ///< the filters that were offered with each
    QString impresion;                 ///< the PDF file that is printed to; empty cancels

    /// The only message, which is then forgotten; fails the test when there is none or several.
    Mensaje unico();

    void avisa(QWidget *, Icono icono, const QString &texto, const QString &titulo) override
    {
        mensajes << Mensaje{icono, texto, titulo};
    }
    Tarea<> avisaYEspera(QWidget *padre, Icono icono, QString texto, QString titulo) override
    {
        co_return avisa(padre, icono, texto, titulo);
    }
    Tarea<QString> preguntaTexto(QWidget *, QString, QString) override
    {
        co_return respuestas.isEmpty() ? QString() : respuestas.takeFirst();
    }
    Tarea<bool> preguntaSiNo(QWidget *, QString pregunta, QString) override
    {
        confirmaciones << pregunta;
        co_return respondeSi;
    }
    Tarea<Guardado> preguntaGuardar(QWidget *, QString texto, QString) override;
    Tarea<QString> eligeArchivoParaAbrir(QWidget *, QString, QString, QStringList filtros) override;
    Tarea<Archivo> eligeArchivoParaGuardar(QWidget *, QString, QString,
                                           QStringList filtros) override;
    Tarea<bool> eligeImpresora(QWidget *, std::shared_ptr<QPrinter> impresora, QString) override;
    Tarea<QString> eligeCarpeta(QWidget *, QString, QString inicial) override;
    void abre(const QString &direccion) override { abiertas << direccion; }
    bool lanzaAlguno(const QList<QStringList> &ordenes) override
    {
        lanzadas << ordenes.constFirst();
        return hayProgramas;
    }
};

/// One place for a test to stand on: settings of its own, the working folder as shipped, no
/// display, the Spanish locale, and a recorder in place of every dialog. An unexpected warning of
/// Qt fails the test.
class Entorno
{
public:
    Entorno(int argc, char *argv[]);
    ~Entorno();

    /// Called in a test's init(): settings, language and recorder as new.
    static void limpia();
    static Grabadora &grabadora();
    static QString carpetaDeTrabajo();
    /// Makes its animations and pages those of another folder too.
    static void ponTrabajoEn(const QString &carpeta);
};

/// The control of that name; the test fails by name when there is none.
template <typename Control>
Control *control(const QObject *ventana, const QString &nombre)
{
    auto *hallado = ventana->findChild<Control *>(nombre);
    if (!hallado)
        qFatal("there is no control %s", qPrintable(nombre));
    return hallado;
}

/// The captions of a lesson's topics, in their order, between bars.
QString rotulosDeTemas(const QWidget *ventana);
/// Their keys, between blanks.
QString clavesDeTemas(const QWidget *ventana);

/// main() of a test of windows.
#define NUMORA_TEST_MAIN(Clase)                                                                    \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        Entorno entorno(argc, argv);                                                               \
        Clase prueba;                                                                              \
        return QTest::qExec(&prueba, argc, argv);                                                  \
    }
