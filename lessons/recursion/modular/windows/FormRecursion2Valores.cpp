// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2Valores.h"

#include "lessons/recursion/modular/TextoDeDefinicion.h"
#include "lessons/recursion/modular/windows/FormRecursion2PintorDeMarcas.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRecursion2Valores.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

FormRecursion2Valores::FormRecursion2Valores(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRecursion2Valores>()),
      m_pasos(new PanelDePasos(u"Recursión modular"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblFuncion, 1.15);
    ui->FlexValores->setModel(&m_valores);
    ui->FlexValores->setItemDelegate(new FormRecursion2PintorDeMarcas(this));
    ui->FlexValores->ponTextoVacio(
        Traduce(u"Aquí aparecerán los valores cuando elija un módulo en «Representación»"_s));
    ui->FlexValores->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    conecta(ui->FlexValores, &QTableView::clicked, this, &FormRecursion2Valores::FlexValores_Click);
}

FormRecursion2Valores::~FormRecursion2Valores() = default;

void FormRecursion2Valores::pon(const DefinicionRecurrente &definicion,
                                const std::optional<SucesionModular> &sucesion)
{
    m_valores.pon(sucesion);
    ui->lblFuncion->setText(textoDeDefinicion(definicion));
    ui->lblModulo->setText(
        sucesion ? Traduce(u"Módulo %1"_s).arg(formatoEntero(qint64{sucesion->modulo()}))
                 : QString());
    ui->lblPareja->setText(textoDePareja(sucesion));
    ui->lblCopiado->clear();
}

QString FormRecursion2Valores::textoDePareja(const std::optional<SucesionModular> &sucesion) const
{
    const auto &periodo = m_valores.periodo();
    if (!periodo)
        return {};
    const int inicio = periodo->inicio;
    const int vuelta = inicio + periodo->longitud;
    return Traduce(u"Marcada, la primera pareja que se repite: %1, %2, en los lugares %3 y %4 y en "
                   u"%5 y "
                   "%6."_s)
        .arg(formatoEntero(qint64{sucesion->valor(inicio)}),
             formatoEntero(qint64{sucesion->valor(inicio + 1)}))
        .arg(inicio)
        .arg(inicio + 1)
        .arg(vuelta)
        .arg(vuelta + 1);
}

void FormRecursion2Valores::FlexValores_Click(const QModelIndex &celda)
{
    if (celda.column() != ModeloValores::Valor)
        return;
    const QString texto = celda.data().toString();
    QApplication::clipboard()->setText(texto);
    muestraNeutro(ui->lblCopiado,
                  Traduce(u"Copiado: f(%1) = %2"_s).arg(celda.row() + 1).arg(texto));
}
