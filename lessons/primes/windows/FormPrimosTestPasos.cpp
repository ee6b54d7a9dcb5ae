// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/steps/CadenaDeCuadrados.h"
#include "lessons/primes/steps/PasosDeCarmichael.h"
#include "lessons/primes/steps/PasosDeTest.h"
#include "lessons/primes/windows/FormPrimosTest.h"
#include "shell/controls/CampoLargo.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormPrimosTest.h"

#include <QHeaderView>

// The steps, what they are asked for, and the numbers tried.

using namespace Qt::Literals::StringLiterals;

void FormPrimosTest::preparaPasos()
{
    m_historial.ponColumnasDeTexto({2});
    ui->FlexHistorial->setModel(&m_historial);
    ui->FlexHistorial->ponTextoVacio(Traduce(
        u"Aquí se anotan los números que se prueban. Con Entrar, el elegido vuelve al campo."_s));
    ui->FlexHistorial->setTextElideMode(Qt::ElideMiddle);
    ui->FlexHistorial->setSelectionBehavior(QAbstractItemView::SelectRows);
    QHeaderView *cabecera = ui->FlexHistorial->horizontalHeader();
    cabecera->setSectionResizeMode(QHeaderView::ResizeToContents);
    cabecera->setSectionResizeMode(0, QHeaderView::Stretch);
    conecta(ui->txtBase, &QLineEdit::textChanged, this, &FormPrimosTest::muestraPasos);
    conecta(ui->cmdCarmichael, &QPushButton::clicked, this, &FormPrimosTest::cmdCarmichael_Click);
    conecta(ui->FlexHistorial, &QAbstractItemView::activated, this,
            &FormPrimosTest::FlexHistorial_Activated);
}

/// Steps and history of a verdict.
void FormPrimosTest::anota(const QString &numero, bool primo, int bits)
{
    m_probado = numero;
    m_esPrimo = primo;
    // As a whole, so that the columns are measured anew.
    const QString veredicto = Traduce(primo ? u"Es primo"_s : u"No es primo"_s);
    m_historial.ponFilas(QList(m_historial.filas())
                         << QStringList{numero.trimmed(), QString::number(bits), veredicto});
    ui->FlexHistorial->scrollToBottom();
    muestraPasos();
}

void FormPrimosTest::muestraPasos()
{
    const QString n = naturalEscrito(m_probado);
    const bool impar = !n.isEmpty() && (n.back().unicode() - u'0') % 2 == 1 && EsMayor(u"3"_s, n);
    ui->cmdCarmichael->setEnabled(impar && !m_esPrimo && NumeroDeBits(n) <= MasBitsDePasos);
    ui->lblAvisoBase->clear();
    if (m_probado.isEmpty()) {
        m_pasos->pon({});
        return;
    }
    const QString base = impar ? baseElegida() : QString();
    m_pasos->pon(Pasos::aplazados([numero = m_probado, primo = m_esPrimo, base] {
        return pasosDeTest(numero, primo, base);
    }));
}

/// The base in the field; empty where there is none that serves, which is told beside it.
QString FormPrimosTest::baseElegida()
{
    const QString n = naturalEscrito(m_probado);
    const auto leida = leeEntero(ui->txtBase->text());
    if (leida && EsMayor(u"1"_s, *leida) && EsMayor(*leida, anterior(n)))
        return *leida;
    if (!ui->txtBase->text().trimmed().isEmpty())
        muestraVeredicto(ui->lblAvisoBase, false,
                         leida
                             ? Traduce(u"La base va de 2 a n − 2. Se toma la automática."_s)
                             : leida.razon().frase() + u' ' + Traduce(u"Se toma la automática."_s));
    return {};
}

void FormPrimosTest::cmdCarmichael_Click()
{
    m_leccion->setCursor(Qt::WaitCursor);
    m_pasos->pon(pasosDeCarmichael(naturalEscrito(m_probado)));
    m_pasos->pideVerse();
    m_leccion->unsetCursor();
}

void FormPrimosTest::FlexHistorial_Activated(const QModelIndex &celda)
{
    ui->txtNúmero->setText(m_historial.filas().at(celda.row()).first());
    ui->txtNúmero->setFocus();
}
