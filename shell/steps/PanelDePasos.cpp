// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/PanelDePasos.h"

#include "shell/access/Anuncio.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/DelegadoDePasos.h"
#include "shell/steps/ImpresionDePasos.h"
#include "shell/steps/ModeloDePasos.h"
#include "shell/steps/Prediccion.h"
#include "ui_PanelDePasos.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPrinter>
#include <QScrollBar>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the user wants all steps at once, in whatever lesson.
constexpr auto ClaveTodos = "Pasos/Todos";

/// Milliseconds from a step to the next one, by the row of the list of speeds.
constexpr std::array Velocidades = {1600, 700, 150};

/// The buttons stand in one row where the panel is wide enough for them; it may always be made as
/// narrow as two rows are.
void acomodaBotones(const Ui::PanelDePasos &ui, int ancho)
{
    ui.cajaDeBotones->setMinimumWidth(
        std::max(ui.filaRecorrido->minimumSize().width(), ui.filaPelicula->minimumSize().width()));
    const int juntos = ui.filaRecorrido->sizeHint().width() + ui.filaPelicula->sizeHint().width();
    const QMargins bordes = ui.columna->contentsMargins();
    const int cabe = ancho - bordes.left() - bordes.right() - ui.filasDeBotones->spacing();
    const bool enUnaFila = juntos <= cabe;
    ui.filasDeBotones->setDirection(enUnaFila ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    // In one row there is one gap, before what takes the steps elsewhere.
    ui.huecoRecorrido->changeSize(0, 0, enUnaFila ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    ui.filaRecorrido->invalidate();
}

/// In the shorter of the two rows: that of the film is long where there is one.
void acomodaPredecir(const Ui::PanelDePasos &ui, bool hayPelicula)
{
    if (hayPelicula)
        ui.filaRecorrido->insertWidget(ui.filaRecorrido->count() - 1, ui.cmdPredecir);
    else
        ui.filaPelicula->insertWidget(0, ui.cmdPredecir);
}

} // namespace

PanelDePasos::PanelDePasos(const QString &tema, QWidget *padre) : QWidget(padre), m_tema(tema)
{
    setObjectName(u"PanelDePasos"_s);
    // Nobody has placed it yet: it would stand over the tool.
    hide();
    connect(&m_reloj, &QTimer::timeout, this, [this] { evento(this, [this] { avanza(); }); });
}

PanelDePasos::~PanelDePasos() = default;

void PanelDePasos::pon(const Pasos &pasos)
{
    m_pasos = pasos;
    m_porMostrar = true;
    if (ui && isVisible())
        muestra();
}

void PanelDePasos::continua(const Pasos &pasos)
{
    pon(pasos);
    if (!m_porMostrar && !pasos.vacios())
        vaA(static_cast<int>(pasos.cuantos()) - 1);
}

void PanelDePasos::enfoca()
{
    if (ui)
        ui->listaDePasos->setFocus(Qt::ShortcutFocusReason);
}

void PanelDePasos::showEvent(QShowEvent *suceso)
{
    if (!ui)
        construye();
    if (m_porMostrar)
        muestra();
    QWidget::showEvent(suceso);
}

void PanelDePasos::hideEvent(QHideEvent *suceso)
{
    if (ui)
        rueda(false);
    QWidget::hideEvent(suceso);
}

void PanelDePasos::changeEvent(QEvent *suceso)
{
    QWidget::changeEvent(suceso);
    if (ui && suceso->type() == QEvent::FontChange) {
        m_delegado->olvida();
        ui->listaDePasos->doItemsLayout();
        // Once the buttons have the new type as well.
        QMetaObject::invokeMethod(
            this, [this] { acomodaBotones(*ui, width()); }, Qt::QueuedConnection);
    }
}

void PanelDePasos::construye()
{
    ui = std::make_unique<Ui::PanelDePasos>();
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblTituloDePasos, 1.1);
    m_modelo = new ModeloDePasos(this);
    m_delegado = new DelegadoDePasos(this);
    ui->listaDePasos->setItemDelegate(m_delegado);
    ui->listaDePasos->setModel(m_modelo);
    ui->listaDePasos->installEventFilter(this);
    installEventFilter(this);
    ui->repartoDePasos->setStretchFactor(0, 2);
    ui->repartoDePasos->setStretchFactor(1, 3);
    ui->cmbVelocidad->setCurrentIndex(1);
    ui->cmdTodosLosPasos->setChecked(Sesión().recuerda(QLatin1StringView(ClaveTodos)).toBool());
    conectaBotones();
    new Prediccion(*ui, *m_modelo, this);
}

void PanelDePasos::conectaBotones()
{
    auto *formas = new QMenu(ui->cmdCopiarPasos);
    const std::array<std::pair<QString, FormaDePasos>, 3> rotulos = {
        {{u"Como texto"_s, FormaDePasos::Texto},
         {u"Como Markdown"_s, FormaDePasos::Markdown},
         {u"Como LaTeX"_s, FormaDePasos::Latex}}};
    for (const auto &rotulo : rotulos) {
        QAction *orden = formas->addAction(Traduce(rotulo.first));
        const FormaDePasos forma = rotulo.second;
        connect(orden, &QAction::triggered, this,
                [this, forma] { evento(this, [this, forma] { copia(forma); }); });
    }
    ui->cmdCopiarPasos->setMenu(formas);
    conecta(ui->cmdPasoAnterior, &QToolButton::clicked, this, &PanelDePasos::cmdAnterior_Click);
    conecta(ui->cmdPasoSiguiente, &QToolButton::clicked, this, &PanelDePasos::cmdSiguiente_Click);
    conecta(ui->cmdTodosLosPasos, &QToolButton::clicked, this, &PanelDePasos::cmdTodos_Click);
    conecta(ui->cmdReproducirPasos, &QToolButton::clicked, this,
            &PanelDePasos::cmdReproducir_Click);
    conecta(ui->cmdImprimirPasos, &QToolButton::clicked, this, &PanelDePasos::cmdImprimir_Click);
    // Long lists are laid out piece by piece: the current step may get its place after it was
    // chosen.
    connect(
        ui->listaDePasos->verticalScrollBar(), &QScrollBar::rangeChanged, this,
        [this] { ui->listaDePasos->scrollTo(ui->listaDePasos->currentIndex()); },
        Qt::QueuedConnection);
    conecta(ui->listaDePasos->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &PanelDePasos::actualiza);
}

void PanelDePasos::muestra()
{
    m_porMostrar = false;
    rueda(false);
    m_delegado->olvida();
    m_modelo->pon(m_pasos, ui->cmdTodosLosPasos->isChecked() ? m_pasos.cuantos() : 1);
    const bool hay = !m_pasos.vacios();
    ui->lblSinPasos->setVisible(!hay);
    ui->repartoDePasos->setVisible(hay);
    ui->LienzoDePasos->pon({});
    ui->LienzoDePasos->hide();
    for (QWidget *control :
         {static_cast<QWidget *>(ui->cmdReproducirPasos), static_cast<QWidget *>(ui->cmbVelocidad)})
        control->setVisible(m_pasos.animables());
    for (QToolButton *boton :
         {ui->cmdTodosLosPasos, ui->cmdCopiarPasos, ui->cmdImprimirPasos, ui->cmdReproducirPasos})
        boton->setEnabled(hay);
    acomodaPredecir(*ui, m_pasos.animables());
    acomodaBotones(*ui, width());
    if (hay)
        vaA(0);
    actualiza();
}

void PanelDePasos::actualiza()
{
    const int paso = actual();
    const bool quedan = paso + 1 < m_pasos.cuantos();
    ui->cmdPasoAnterior->setEnabled(paso > 0);
    ui->cmdPasoSiguiente->setEnabled(quedan);
    ui->lblCualPaso->setText(
        paso < 0 ? QString() : Traduce(u"Paso %1 de %2"_s).arg(paso + 1).arg(m_pasos.cuantos()));
    if (paso >= 0) {
        const Paso este = m_modelo->paso(paso);
        ui->lblCualPaso->setAccessibleDescription(pasoComoPalabras(este));
        anuncia(ui->lblCualPaso);
        // A step without a drawing leaves that of an earlier one: the board does not jump away.
        if (!este.lamina.vacia()) {
            ui->LienzoDePasos->pon(este.lamina);
            ui->LienzoDePasos->show();
        }
    }
    Q_EMIT pasoActual(paso);
}

int PanelDePasos::actual() const
{
    return ui->listaDePasos->currentIndex().row();
}

void PanelDePasos::vaA(int paso)
{
    if (paso >= m_modelo->rowCount())
        m_modelo->muestra(paso + 1);
    const QModelIndex indice = m_modelo->index(paso);
    ui->listaDePasos->setCurrentIndex(indice);
    ui->listaDePasos->scrollTo(indice);
}

void PanelDePasos::avanza()
{
    if (actual() + 1 < m_pasos.cuantos())
        vaA(actual() + 1);
    else
        rueda(false);
}

void PanelDePasos::retrocede()
{
    if (actual() > 0)
        vaA(actual() - 1);
}

void PanelDePasos::rueda(bool en)
{
    ui->cmdReproducirPasos->setChecked(en);
    if (en)
        m_reloj.start(Velocidades.at(static_cast<std::size_t>(ui->cmbVelocidad->currentIndex())));
    else
        m_reloj.stop();
}

void PanelDePasos::cmdAnterior_Click()
{
    rueda(false);
    retrocede();
}

void PanelDePasos::cmdSiguiente_Click()
{
    rueda(false);
    avanza();
}

void PanelDePasos::cmdTodos_Click(bool todos)
{
    rueda(false);
    Sesión().anota(QLatin1StringView(ClaveTodos), todos);
    m_modelo->muestra(todos ? m_pasos.cuantos() : std::max(1, actual() + 1));
    actualiza();
}

/// From the first step again where the last one is reached.
void PanelDePasos::cmdReproducir_Click(bool en)
{
    if (en && actual() + 1 >= m_pasos.cuantos())
        vaA(0);
    rueda(en);
}

void PanelDePasos::copia(FormaDePasos forma)
{
    QString texto;
    for (int i = 0; i < m_modelo->rowCount(); ++i)
        texto += pasoComo(forma, m_modelo->paso(i), i);
    if (forma == FormaDePasos::Latex)
        texto = u"\\begin{itemize}\n"_s + texto + u"\\end{itemize}\n"_s;
    QGuiApplication::clipboard()->setText(texto);
}

Tarea<> PanelDePasos::cmdImprimir_Click()
{
    const Pasos pasos = m_pasos;
    const auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    const QString titulo = Traduce(m_tema);
    const bool elegida = co_await interlocutor().eligeImpresora(this, impresora, titulo);
    if (!elegida)
        co_return;
    if (!imprimePasos(*impresora, pasos, titulo))
        co_await interlocutor().avisaYEspera(this, Interlocutor::Icono::Exclamacion,
                                             Traduce(u"No se pudo imprimir."_s), titulo);
}

bool PanelDePasos::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (objeto == this && suceso->type() == QEvent::Resize)
        acomodaBotones(*ui, width());
    if (objeto == this || suceso->type() != QEvent::KeyPress)
        return QWidget::eventFilter(objeto, suceso);
    const auto *tecla = static_cast<QKeyEvent *>(suceso);
    if (tecla->matches(QKeySequence::Copy)) {
        evento(this, [this] { copia(FormaDePasos::Texto); });
        return true;
    }
    switch (tecla->key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        evento(this, [this] { cmdSiguiente_Click(); });
        return true;
    case Qt::Key_Up:
    case Qt::Key_Left:
        evento(this, [this] { cmdAnterior_Click(); });
        return true;
    default:
        return QWidget::eventFilter(objeto, suceso);
    }
}
