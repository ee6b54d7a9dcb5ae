// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/FormEuclidesDiofantica.h"

#include "lessons/euclid/ModeloSoluciones.h"
#include "lessons/euclid/PasosDeEcuacion.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormEuclidesDiofantica.h"

using namespace Qt::Literals::StringLiterals;

FormEuclidesDiofantica::FormEuclidesDiofantica(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormEuclidesDiofantica>()),
      m_modelo(new ModeloSoluciones(this)),
      m_pasos(new PanelDePasos(u"Ecuación diofántica"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblSoluciones);
    ui->FlexEcuación->setModel(m_modelo);
    ui->FlexEcuación->ponTextoVacio(
        Traduce(u"Aquí se listan las soluciones de a·x + b·y = c con x e y no negativos."_s));
    ui->FlexEcuación->setTextElideMode(Qt::ElideNone);
    new ColumnasRepartidas(ui->FlexEcuación);

    m_txtN = {ui->txtNº_0, ui->txtNº_1, ui->txtNº_2};
    for (int i = 0; i < m_txtN.size(); ++i)
        conecta(m_txtN[i], &QLineEdit::textChanged, this, [this, i] { txtN_Change(i); });
}

FormEuclidesDiofantica::~FormEuclidesDiofantica() = default;

void FormEuclidesDiofantica::muestra(const SolucionesDiofanticas &soluciones)
{
    m_modelo->pon(soluciones.lista);
    muestraNeutro(ui->lblSoluciones, soluciones.cuenta);
    ui->TxtSoluciones->setPlainText(soluciones.general);
}

void FormEuclidesDiofantica::ResuelveEcuacion()
{
    // An error on the way must not leave the solutions of other numbers in sight.
    muestra({{}, Traduce(u"Soluciones"_s), {}});
    m_pasos->pon({});
    const auto valor = [this](int indice) {
        const Moneda mayor = Moneda::deEntero(Moneda::MaximoEntero);
        const auto leido = leeEntero(m_txtN[indice]->text(), -mayor, mayor);
        return leido ? *leido : Moneda();
    };
    const Moneda a = valor(0), b = valor(1), c = valor(2);
    // Before the solver, which can overflow where the steps do not.
    m_pasos->pon(pasosDeEcuacion(a, b, c));
    muestra(m_ecuacion.resuelve(a, b, c));
}

void FormEuclidesDiofantica::txtN_Change(int indice)
{
    if (indice < 2)
        m_modelo->setHeaderData(indice + 1, Qt::Horizontal,
                                Traduce(u"Nº de billetes de "_s) + m_txtN[indice]->text());
    ResuelveEcuacion();
}
