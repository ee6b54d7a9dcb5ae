// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1Arbol.h"

#include "lessons/complexity/PasosDeLlamadas.h"
#include "shell/access/Papel.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRecursion1Arbol.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString leyenda(int llamadas, int repetidas)
{
    if (llamadas == 1)
        return Traduce(u"Una llamada: es un caso base."_s);
    if (repetidas == 0)
        return Traduce(u"%1 llamadas, y ningún valor se pide dos veces."_s).arg(llamadas);
    if (repetidas == 1)
        return Traduce(u"%1 llamadas, de las que una pide un valor ya pedido antes (borde "
                       u"discontinuo)."_s)
            .arg(llamadas);
    return Traduce(u"%1 llamadas, de las que %2 piden un valor ya pedido antes (borde "
                   u"discontinuo)."_s)
        .arg(llamadas)
        .arg(repetidas);
}

} // namespace

FormRecursion1Arbol::FormRecursion1Arbol(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion1Arbol>()),
      m_pasos(new PanelDePasos(u"Árbol de llamadas"_s, this))
{
    ui->setupUi(this);
    // The role first: a name makes Qt look for it.
    ponPapel(ui->visor, QAccessible::Grouping);
    ui->visor->setAccessibleName(Traduce(u"Árbol de llamadas"_s));
    traduceVentana(this);
    ui->SpinN->setMaximum(ArbolDeLlamadas::MaximoN);
    ui->cmdSiguienteLlamada->setIcon(ImgSiguiente());
    ui->visor->setBackgroundRole(QPalette::Base);

    conecta(ui->SpinN, &QSpinBox::valueChanged, this, &FormRecursion1Arbol::SpinN_Change);
    conecta(ui->chkMemoria, &QCheckBox::toggled, this, &FormRecursion1Arbol::SpinN_Change);
    conecta(ui->sldLlamadas, &QSlider::valueChanged, this,
            &FormRecursion1Arbol::sldLlamadas_Change);
    conecta(ui->cmdSiguienteLlamada, &QPushButton::clicked, this,
            &FormRecursion1Arbol::cmdSiguienteLlamada_Click);
    SpinN_Change();
}

FormRecursion1Arbol::~FormRecursion1Arbol() = default;

void FormRecursion1Arbol::SpinN_Change()
{
    m_arbol = ArbolDeLlamadas(ui->SpinN->value(), ui->chkMemoria->isChecked());
    const auto total = static_cast<int>(m_arbol.llamadas().size());
    ui->PicArbol->ponArbol(m_arbol);
    ui->lblLeyenda->setText(leyenda(total, m_arbol.repetidas()));
    ui->sldLlamadas->setRange(0, total);
    ui->sldLlamadas->setValue(total);
    sldLlamadas_Change(total);
    m_pasos->pon(pasosDeLlamadas(ui->SpinN->value(), ui->chkMemoria->isChecked()));
}

/// From the last call it starts again.
void FormRecursion1Arbol::cmdSiguienteLlamada_Click()
{
    const int hechas = ui->sldLlamadas->value();
    ui->sldLlamadas->setValue(hechas == ui->sldLlamadas->maximum() ? 1 : hechas + 1);
}

void FormRecursion1Arbol::sldLlamadas_Change(int hechas)
{
    ui->PicArbol->ponHechas(hechas);
    if (hechas == 0) {
        ui->lblLlamada->setText(Traduce(u"Todavía no se ha llamado a nada."_s));
        return;
    }
    const Llamada &ultima = m_arbol.llamadas().at(hechas - 1);
    QString que = Traduce(u"se pide por primera vez"_s);
    if (ultima.repetida) {
        que = ui->chkMemoria->isChecked() ? Traduce(u"estaba en la memoria"_s)
                                          : Traduce(u"se vuelve a calcular"_s);
    }
    ui->lblLlamada->setText(Traduce(u"Llamada %1 de %2: F(%3), %4."_s)
                                .arg(hechas)
                                .arg(ui->sldLlamadas->maximum())
                                .arg(ultima.n)
                                .arg(que));
}
