// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/DocumentoDeHoja.h"
#include "shell/core/CopiaDeTrabajo.h"
#include "shell/core/run/Tarea.h"

#include <QObject>
#include <functional>

class FormCalcRejilla;
class QWidget;

/// The files of the sheet: saving, opening, exporting and printing it, what is asked before one
/// goes away, and the copy of unsaved work that the next window offers.
class FormCalcDocumento : public QObject
{
    Q_OBJECT

public:
    FormCalcDocumento(HojaDeCalculo &hoja, FormCalcRejilla &rejilla, QWidget *ventana);

    /// The caption of the window: with the name of the file, and a star while there is unsaved
    /// work.
    QString titulo() const;

    Tarea<> nuevo();
    Tarea<> abre();
    Tarea<> guarda();
    Tarea<> guardaComo();
    Tarea<> exporta();
    Tarea<> imprime();

    /// Asks about unsaved work, and saves it when told to; false when the sheet is to stay.
    Tarea<bool> confirmaDescarte();

    /// Offers the sheet that was not saved when the program last ended, if there is one.
    Tarea<> ofreceCopia();

    /// The sheet has changed: the copy of it follows.
    void cambia();

Q_SIGNALS:
    /// Another sheet stands in the window.
    void abierta();

private:
    bool guardaEn(const QString &ruta);
    Tarea<bool> guardaDondeEstaba();
    Tarea<bool> preguntaRutaYGuarda();
    bool muestra(const DocumentoDeHoja::Leida &leida, const QString &ruta);
    bool escribe(const std::function<bool()> &accion);
    void avisa(const QString &texto);
    void recuerdaCarpeta(const QString &ruta);
    QString carpetaPropuesta() const;

    HojaDeCalculo &m_hoja;
    FormCalcRejilla &m_rejilla;
    QWidget *m_ventana;
    DocumentoDeHoja m_documento;
    bool m_descartada = false; ///< the user needs no copy of the sheet as it is
    CopiaDeTrabajo m_copia;
};
