// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/FormRecursion3Hailstone.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/recursion/functions/PasosDeGranizo.h"
#include "lessons/recursion/functions/windows/FormRecursion3PintorDeNumeros.h"
#include "shell/access/Anuncio.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion3Hailstone.h"

#include <QHeaderView>
#include <QScrollBar>
#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto PasoDePantalla = 50ms;

/// The curve changes less from one picture to the next than the rows do, and takes longer to draw.
constexpr auto PasoDeCurva = 250ms;

} // namespace

FormRecursion3Hailstone::FormRecursion3Hailstone(std::shared_ptr<Parada> parada, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion3Hailstone>()),
      m_tareas(this, std::move(parada))
{
    ui->setupUi(this);
    traduceVentana(this);
    m_corrida =
        new BotonDeCorrida(ui->cmdHail, BotonDeCorrida::calcular(), BotonDeCorrida::detener());
    Aspecto::destaca(ui->lblPregunta, 1.15);
    ui->LabelHail->viewport()->setAutoFillBackground(false);
    preparaRejilla();
    ui->PicHail->ponTextoVacio(Traduce(u"Aquí se verá cómo suben y bajan los valores"_s));
    m_pantalla.setInterval(PasoDePantalla);
    m_pantallaDeCurva.setInterval(PasoDeCurva);

    conecta(ui->cmdHail, &QPushButton::clicked, this, &FormRecursion3Hailstone::cmdHail_Click);
    conecta(ui->TxtInicial, &CampoLargo::returnPressed, this, &FormRecursion3Hailstone::empieza);
    conecta(m_corrida, &BotonDeCorrida::terminada, this, &FormRecursion3Hailstone::termina);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormRecursion3Hailstone::muestraAvance);
    conecta(&m_pantallaDeCurva, &QTimer::timeout, this, &FormRecursion3Hailstone::muestraCurva);
    ui->PicHail->ponEjes(u"n"_s, u"log₁₀ h(n)"_s);
    conecta(ui->PicHail, &Grafica::senalado, this, &FormRecursion3Hailstone::PicHail_Senalado);
}

FormRecursion3Hailstone::~FormRecursion3Hailstone() = default;

void FormRecursion3Hailstone::preparaRejilla()
{
    ui->FlexHail->setModel(&m_modelo);
    ui->FlexHail->setItemDelegate(new FormRecursion3PintorDeNumeros(this));
    ui->FlexHail->setTextElideMode(Qt::ElideMiddle);
    ui->FlexHail->ponTextoVacio(Traduce(u"Aquí aparecerá la sucesión, un paso por fila"_s));
    ui->FlexHail->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    auto *cabecera = ui->FlexHail->horizontalHeader();
    cabecera->setSectionResizeMode(ModeloGranizo::Valor, QHeaderView::Stretch);
    cabecera->resizeSection(ModeloGranizo::Paso,
                            fontMetrics().horizontalAdvance(u"000000000000"_s));
}

void FormRecursion3Hailstone::cmdHail_Click()
{
    ui->LabelHail->clear();
    if (m_corrida->enMarcha())
        m_corrida->detiene();
    else
        empieza();
}

void FormRecursion3Hailstone::empieza()
{
    if (!m_corrida->enMarcha())
        m_tareas.lanza(corre());
}

Tarea<> FormRecursion3Hailstone::corre()
{
    const BotonDeCorrida::Marcha marcha = m_corrida->empieza(m_tareas.billete());
    ui->LabelHail->clear();
    // Each run has a history of its own, so that one that was stopped writes into no other.
    m_historia = std::make_shared<HistoriaGranizo>();
    m_modelo.pon(m_historia);
    ui->PicHail->borra();
    Q_EMIT hayPasos({});
    m_pantalla.start();
    m_pantallaDeCurva.start();
    const QString inicio = ui->TxtInicial->text().trimmed();
    const FinDeGranizo fin = co_await correGranizo(inicio, m_historia, marcha.billete());
    if (!marcha.vigente())
        co_return;
    muestraFin(inicio, fin);
    Q_EMIT hayPasos(pasosDe(inicio, fin));
}

/// None of a start that is no number, or has no step.
Pasos FormRecursion3Hailstone::pasosDe(QString inicio, FinDeGranizo fin) const
{
    const qint64 hechos = m_historia->ultimo() - (fin == FinDeGranizo::DemasiadasCifras ? 1 : 0);
    if (fin == FinDeGranizo::SinEntero || hechos < 1)
        return {};
    return pasosDeGranizo(Evalua(inicio), hechos);
}

void FormRecursion3Hailstone::termina()
{
    muestraAvance();
    muestraCurva();
    m_pantalla.stop();
    m_pantallaDeCurva.stop();
}

void FormRecursion3Hailstone::muestraAvance()
{
    const QScrollBar *barra = ui->FlexHail->verticalScrollBar();
    const bool alFinal = barra->value() == barra->maximum();
    m_modelo.publica();
    if (alFinal)
        ui->FlexHail->scrollToBottom();
    const qint64 cifras = cifrasDe(m_historia->valor(m_historia->ultimo()));
    ui->lblAvance->setText(
        cifras == 0 ? QString()
                    : Traduce(u"Paso: %1 · Cifras: %2"_s)
                          .arg(formatoEntero(m_historia->ultimo()), formatoEntero(cifras)));
}

void FormRecursion3Hailstone::muestraCurva()
{
    m_puntos = m_historia->curva().puntos();
    // One value alone would be a dot in a corner.
    if (m_puntos.size() < 2)
        return;
    const QRectF limites(0, 0, m_puntos.constLast().x(), std::ceil(m_historia->curva().maximo()));
    ui->PicHail->ponPuntos(m_puntos, limites);
}

/// A point of the curve shows its row; not during a run, when the last rows are in sight.
void FormRecursion3Hailstone::PicHail_Senalado(int indice)
{
    if (indice < 0 || indice >= m_puntos.size() || m_corrida->enMarcha())
        return;
    const qint64 fila = std::llround(m_puntos[indice].x()) - m_historia->primero();
    if (fila >= 0)
        ui->FlexHail->setCurrentIndex(m_modelo.index(static_cast<int>(fila), ModeloGranizo::Valor));
}

void FormRecursion3Hailstone::muestraFin(const QString &inicio, FinDeGranizo fin)
{
    switch (fin) {
    case FinDeGranizo::EnUno:
        ui->LabelHail->setText(Traduce(u"Con "_s) + inicio + Traduce(u" se llega a 1 en "_s) +
                               QString::number(m_historia->ultimo()) + Traduce(u" iteraciones."_s));
        break;
    case FinDeGranizo::SinEntero:
        ui->LabelHail->setText(Traduce(u"El valor inicial tiene que ser un número entero escrito "
                                       "con sus cifras, 24575 como mucho."_s));
        break;
    case FinDeGranizo::DemasiadasCifras:
        ui->LabelHail->setText(Traduce(u"El número siguiente tiene demasiadas cifras."_s));
        break;
    case FinDeGranizo::Detenido:
        break;
    }
    anuncia(ui->LabelHail->text());
}
