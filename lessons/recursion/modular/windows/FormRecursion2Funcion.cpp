// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2Funcion.h"

#include "lessons/recursion/modular/TextoDeDefinicion.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion2Funcion.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// So many values say whether a sequence grows, and how.
constexpr int PrimerosALaVista = 40;

} // namespace

FormRecursion2Funcion::FormRecursion2Funcion(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRecursion2Funcion>()),
      m_primeros({u"n"_s, u"f(n)"_s})
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdFunción->setIcon(Icono(u"VALIDAR"_s));
    Aspecto::destaca(ui->lblIntroduce, 1.15);
    ui->FlexPrimeros->setModel(&m_primeros);
    ui->FlexPrimeros->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    conecta(ui->cmdFunción, &QPushButton::clicked, this, &FormRecursion2Funcion::cmdFuncion_Click);
    for (auto *campo : {ui->txtAlfa, ui->TxtBeta, ui->TxtF1, ui->txtF2}) {
        conecta(campo, &QLineEdit::returnPressed, this, &FormRecursion2Funcion::cmdFuncion_Click);
        conecta(campo, &QLineEdit::textEdited, this, [this] { ui->lblAviso->clear(); });
    }
    muestraPrimeros({});
}

FormRecursion2Funcion::~FormRecursion2Funcion() = default;

void FormRecursion2Funcion::cmdFuncion_Click()
{
    ui->lblAviso->clear();
    DefinicionRecurrente definicion;
    const bool completa = lee(ui->txtAlfa, definicion.alfa) && lee(ui->TxtBeta, definicion.beta) &&
                          lee(ui->TxtF1, definicion.f1) && lee(ui->txtF2, definicion.f2);
    if (!completa)
        return;
    muestraVeredicto(ui->lblAviso, true,
                     Traduce(u"Función aceptada: %1. Elija ahora un módulo en «Representación»."_s)
                         .arg(textoDeDefinicion(definicion)));
    muestraPrimeros(definicion);
    Q_EMIT aceptada(definicion);
}

/// Reads a field; one that holds no number gets the focus.
bool FormRecursion2Funcion::lee(QLineEdit *campo, Moneda &valor)
{
    const auto leido = leeCoeficiente(campo->text());
    if (leido) {
        valor = *leido;
        return true;
    }
    rechaza(campo, ui->lblAviso, campo->accessibleName() + u": "_s + leido.razon().frase());
    return false;
}

void FormRecursion2Funcion::muestraPrimeros(const DefinicionRecurrente &definicion)
{
    QList<QStringList> filas;
    for (const Moneda valor : primerosValores(definicion, PrimerosALaVista))
        filas << QStringList{QString::number(filas.size() + 1), formatoEntero(valor)};
    m_primeros.ponFilas(filas);
}
