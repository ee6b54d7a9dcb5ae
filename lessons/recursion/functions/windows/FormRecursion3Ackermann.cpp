#include "lessons/recursion/functions/windows/FormRecursion3Ackermann.h"

#include "lessons/recursion/EntradaNumerica.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCalculo.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion3Ackermann.h"

#include <QHeaderView>
#include <QScopeGuard>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int FilasAlAbrir = 12;
constexpr int ColumnasAlAbrir = 9;
constexpr int NumFotogramas = 4;
constexpr auto PasoDeAnimacion = 250ms;
/// How often the grid and the call in progress are shown: calls pass by the million.
constexpr auto PasoDePantalla = 50ms;

void conservaSuSitio(QWidget *control)
{
    QSizePolicy politica = control->sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    control->setSizePolicy(politica);
    control->hide();
}

} // namespace

FormRecursion3Ackermann::FormRecursion3Ackermann(Corrida &corrida, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion3Ackermann>()),
      m_corrida(corrida),
      m_memoria(FilasAlAbrir, ColumnasAlAbrir),
      m_modelo(m_memoria)
{
    ui->setupUi(this);
    traduceVentana(this);
    const QString consejo = ui->cmdAck->toolTip();
    muestraCalcular(ui->cmdAck);
    ui->cmdAck->setToolTip(consejo);
    ui->imgAck->setImagen(u"TRABAJANDO0"_s);
    Aspecto::destaca(ui->lblResultado, 1.15);
    ui->txtAck->setMinimumWidth(fontMetrics().horizontalAdvance(u"Ack(000, 0000000) "_s));
    conservaSuSitio(ui->imgAck);
    conservaSuSitio(ui->LabelAck1);
    ui->FlexAck->setModel(&m_modelo);
    ui->FlexAck->verticalHeader()->show();
    ui->FlexAck->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui->FlexAck->verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ui->FlexAck->horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_timerAck.setObjectName(u"TimerAck"_s);
    m_timerAck.setInterval(PasoDeAnimacion);
    m_pantalla.setInterval(PasoDePantalla);

    conecta(ui->cmdAck, &QPushButton::clicked, this, &FormRecursion3Ackermann::cmdAck_Click);
    for (auto *campo : {ui->TxtX, ui->TxtY, ui->txtMaxAck})
        conecta(campo, &QLineEdit::returnPressed, this, &FormRecursion3Ackermann::empieza);
    conecta(&m_timerAck, &QTimer::timeout, this, &FormRecursion3Ackermann::TimerAck_Timer);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormRecursion3Ackermann::muestraAvance);
}

FormRecursion3Ackermann::~FormRecursion3Ackermann() = default;

QAbstractButton *FormRecursion3Ackermann::botonDeParada() const
{
    return m_timerAck.isActive() ? ui->cmdAck : nullptr;
}

void FormRecursion3Ackermann::cmdAck_Click()
{
    if (!m_timerAck.isActive()) {
        empieza();
        return;
    }
    m_timerAck.stop();
    m_corrida.detener();
    muestraCalcular(ui->cmdAck);
}

void FormRecursion3Ackermann::empieza()
{
    // A run that was told to stop must see the flag before it is cleared for another.
    const bool parando = m_corrida.enCurso() && m_corrida.detenida();
    if (m_timerAck.isActive() || parando)
        return;
    m_corrida.permitir();
    if (!EsNumerico(ui->txtMaxAck->text()))
        return;
    const std::int32_t corte = enteroDeTexto(ui->txtMaxAck->text(), Traduce(u"Máximo"_s));
    calcula({enteroDeTexto(ui->TxtX->text(), u"x"_s), enteroDeTexto(ui->TxtY->text(), u"y"_s)},
            corte);
}

void FormRecursion3Ackermann::calcula(Ack::Llamada llamada, std::int32_t corte)
{
    const Corrida::Tramo tramo(m_corrida);
    const auto alFinal = qScopeGuard([this] { termina(); });
    m_memoria.vacia();
    m_modelo.reinicia();
    m_ack.emplace(m_memoria, m_corrida, corte);
    ui->lblResultado->clear();
    ui->imgAck->show();
    ui->LabelAck1->show();
    muestraDetener(ui->cmdAck);
    m_reloj.start();
    m_timerAck.start();
    m_pantalla.start();
    TimerAck_Timer();
    m_corrida.cederYa();

    const std::int32_t valor = m_ack->calcula(llamada.m, llamada.n);
    muestraAvance();
    if (m_ack->rendido()) {
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                               Traduce(u"Demasiados cálculos."_s), Traduce(u"Me rindo"_s));
    }
    ui->lblResultado->setText(textoDeValor(llamada, valor));
    vaACelda(llamada);
}

/// However the run ended, the grid shows all that it found and the window is at rest.
void FormRecursion3Ackermann::termina()
{
    m_modelo.publica();
    TimerAck_Timer();
    m_timerAck.stop();
    m_pantalla.stop();
    ui->imgAck->hide();
    ui->LabelAck1->hide();
    muestraCalcular(ui->cmdAck);
}

void FormRecursion3Ackermann::muestraAvance()
{
    m_modelo.publica();
    ui->txtAck->setText(textoDeLlamada(m_ack->actual()));
}

void FormRecursion3Ackermann::vaACelda(Ack::Llamada llamada)
{
    const QModelIndex celda = m_modelo.destaca(llamada);
    if (!celda.isValid())
        return;
    // Without a selection, whose colour would cover the cyan.
    ui->FlexAck->selectionModel()->setCurrentIndex(celda, QItemSelectionModel::Clear);
    ui->FlexAck->scrollTo(celda, QAbstractItemView::PositionAtTop);
    ui->FlexAck->horizontalScrollBar()->setValue(
        ui->FlexAck->horizontalHeader()->sectionPosition(celda.column()));
}

void FormRecursion3Ackermann::TimerAck_Timer()
{
    m_fotograma = (m_fotograma + 1) % NumFotogramas;
    ui->imgAck->setImagen(u"TRABAJANDO%1"_s.arg(m_fotograma));
    ui->lblTiempoAck->setText(formatoTiempo(std::chrono::milliseconds(m_reloj.elapsed())));
}
