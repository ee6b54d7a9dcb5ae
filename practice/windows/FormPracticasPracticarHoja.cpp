// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Banco.h"
#include "practice/windows/FormPracticasPracticar.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Veredicto.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormPracticasPracticar.h"

// A sheet that is done in the program: its exercises in their order, with or without a limit.

using namespace Qt::Literals::StringLiterals;

void FormPracticasPracticar::haceHoja(const EncargoDeHoja &encargo, int minutos)
{
    if (m_hoja)
        cuentaDeHoja();
    m_hoja = Hoja{.codigo = codigoDeHoja(encargo),
                  .ejercicios = ejerciciosDeHoja(encargo),
                  .milisegundos = minutos * 60'000LL,
                  .desde = {}};
    m_hoja->desde.start();
    ponHoja(true);
    planteaDeHoja();
    ui->txtRespuesta->setFocus();
}

/// What is there to choose goes while a sheet is done.
void FormPracticasPracticar::ponHoja(bool en)
{
    if (!en)
        m_hoja.reset();
    const QList<QWidget *> deEleccion{ui->lblLeccion, ui->cmbLeccion, ui->lblTipo,
                                      ui->cmbTipo,    ui->lblNivel,   ui->cmbNivel};
    for (QWidget *control : deEleccion)
        control->setVisible(!en);
    ui->lblHoja->setVisible(en);
    ui->cmdDejarHoja->setVisible(en);
    if (en)
        m_relojDeHoja->start();
    else
        m_relojDeHoja->stop();
}

void FormPracticasPracticar::planteaDeHoja()
{
    const EjercicioDeHoja &uno = m_hoja->ejercicios[m_hoja->cual];
    m_curso.emplace(*uno.tipo, uno.nivel, uno.ejercicio);
    m_lugar = {};
    muestraEnunciado({uno.tipo->clave, uno.nivel, Propuesta::Siguiente});
    muestraMarchaDeHoja();
    m_reloj.start();
}

void FormPracticasPracticar::muestraMarchaDeHoja()
{
    QString texto = Traduce(u"Hoja %1: ejercicio %2 de %3"_s)
                        .arg(m_hoja->codigo)
                        .arg(m_hoja->cual + 1)
                        .arg(m_hoja->ejercicios.size());
    if (m_hoja->milisegundos > 0) {
        const qint64 quedan = std::max<qint64>(0, m_hoja->milisegundos - m_hoja->desde.elapsed());
        texto += u" · "_s +
                 Traduce(u"quedan %1"_s).arg(formatoTiempo(std::chrono::milliseconds(quedan)));
    }
    ui->lblHoja->setText(texto);
}

/// The exercise in sight is over; what was not answered is put down as such.
void FormPracticasPracticar::cuentaDeHoja()
{
    if (m_lugar.enMemoria < 0)
        anota();
    m_hoja->sinAyuda += m_curso->hecho().sinAyuda() ? 1 : 0;
}

void FormPracticasPracticar::dejaEjercicio()
{
    cuentaDeHoja();
    if (++m_hoja->cual < m_hoja->ejercicios.size())
        planteaDeHoja();
    else
        terminaHoja(Traduce(u"Hoja terminada."_s));
}

void FormPracticasPracticar::relojDeHoja_Timer()
{
    if (!m_hoja)
        return;
    if (m_hoja->milisegundos == 0 || m_hoja->desde.elapsed() < m_hoja->milisegundos) {
        muestraMarchaDeHoja();
        return;
    }
    cuentaDeHoja();
    terminaHoja(Traduce(u"Se acabó el tiempo."_s));
}

/// Tells how it went, and goes on with practice where it was before.
void FormPracticasPracticar::terminaHoja(const QString &palabra)
{
    const QString cuenta = Traduce(u"Hoja %1: %2 de %3 sin ayuda."_s)
                               .arg(m_hoja->codigo)
                               .arg(m_hoja->sinAyuda)
                               .arg(m_hoja->ejercicios.size());
    ponHoja(false);
    plantea();
    muestraNeutro(ui->lblVeredicto,
                  palabra + u' ' + cuenta + u' ' +
                      Traduce(u"En «Historia» puede guardar los resultados para el profesor."_s));
}

void FormPracticasPracticar::cmdDejarHoja_Click()
{
    cuentaDeHoja();
    terminaHoja(Traduce(u"Ha dejado la hoja."_s));
}
