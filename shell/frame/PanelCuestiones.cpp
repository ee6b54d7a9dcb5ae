// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/PanelCuestiones.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_PanelCuestiones.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How often a question is drawn again until it is another one; a draw among very few may repeat.
constexpr int SorteosComoMucho = 20;

/// From this width on the two questions stand side by side, in letters.
constexpr int LetrasParaDos = 130;

} // namespace

/// Where one question stands: what draws it, and its controls.
struct PanelCuestiones::Lugar
{
    Sorteo sortea;
    QLabel *enunciado;
    QLineEdit *respuesta;
    QPushButton *comprobar, *otra;
    QLabel *leido;
    QLabel *veredicto;
    Cuestion cuestion = {};
};

PanelCuestiones::PanelCuestiones(const Sorteo &primera, const Sorteo &segunda, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::PanelCuestiones>()),
      m_intentos({Traduce(u"Cuestión"_s), Traduce(u"Respuesta"_s), Traduce(u"Resultado"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    preparaIntentos();
    m_lugares = {{primera, ui->lblEnunciado_0, ui->txtRespuesta_0, ui->cmdComprobar_0,
                  ui->cmdOtra_0, ui->lblLeido_0, ui->lblVeredicto_0},
                 {segunda, ui->lblEnunciado_1, ui->txtRespuesta_1, ui->cmdComprobar_1,
                  ui->cmdOtra_1, ui->lblLeido_1, ui->lblVeredicto_1}};
    for (QLabel *titulo : {ui->lblTitulo_0, ui->lblTitulo_1})
        Aspecto::destaca(titulo, 1.15);
    for (Lugar &lugar : m_lugares) {
        lugar.comprobar->setIcon(Icono(u"COMPROBAR"_s));
        lugar.otra->setIcon(Icono(u"DADO"_s));
        conecta(lugar.comprobar, &QPushButton::clicked, this,
                [this, &lugar] { cmdComprobar_Click(lugar); });
        conecta(lugar.otra, &QPushButton::clicked, this, [&lugar] { cmdOtra_Click(lugar); });
        conecta(lugar.respuesta, &QLineEdit::returnPressed, this,
                [this, &lugar] { cmdComprobar_Click(lugar); });
        conecta(lugar.respuesta, &QLineEdit::textChanged, this,
                [&lugar] { txtRespuesta_Change(lugar); });
        plantea(lugar);
    }
}

PanelCuestiones::~PanelCuestiones() = default;

void PanelCuestiones::preparaIntentos()
{
    m_intentos.ponColumnasDeTexto({0, 2});
    ui->FlexIntentos->setModel(&m_intentos);
    ui->FlexIntentos->ponTextoVacio(Traduce(u"Aquí se anotan las respuestas que se comprueban."_s));
    ui->FlexIntentos->setTextElideMode(Qt::ElideMiddle);
    new ColumnasRepartidas(ui->FlexIntentos);
}

/// Side by side where there is room for two statements, else one below the other.
void PanelCuestiones::resizeEvent(QResizeEvent *suceso)
{
    QWidget::resizeEvent(suceso);
    const bool cabenJuntas = width() > fontMetrics().averageCharWidth() * LetrasParaDos;
    ui->reparto->setDirection(cabenJuntas ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    ui->reparto->setStretch(0, cabenJuntas ? 1 : 0);
    ui->raya->setFrameShape(cabenJuntas ? QFrame::VLine : QFrame::HLine);
}

void PanelCuestiones::plantea(Lugar &lugar)
{
    const QString anterior = lugar.cuestion.enunciado;
    for (int vez = 0; vez < SorteosComoMucho && lugar.cuestion.enunciado == anterior; ++vez)
        lugar.cuestion = lugar.sortea();
    lugar.enunciado->setText(lugar.cuestion.enunciado);
    lugar.respuesta->setPlaceholderText(lugar.cuestion.ejemplo);
    lugar.respuesta->clear();
    lugar.veredicto->clear();
}

/// What is read stands there at each key, judged by nobody; a verdict belongs to the answer that
/// was judged.
void PanelCuestiones::txtRespuesta_Change(Lugar &lugar)
{
    lugar.leido->setText(leeRespuesta(lugar.respuesta->text(), lugar.cuestion.forma).leo);
    lugar.veredicto->clear();
}

void PanelCuestiones::cmdOtra_Click(Lugar &lugar)
{
    plantea(lugar);
    lugar.respuesta->setFocus();
}

void PanelCuestiones::cmdComprobar_Click(Lugar &lugar)
{
    lugar.respuesta->setFocus();
    const Juicio juicio = lugar.cuestion.juzga(lugar.respuesta->text());
    if (!juicio.juzgada) {
        muestraNeutro(lugar.veredicto, juicio.palabra);
        return;
    }
    muestraVeredicto(lugar.veredicto, juicio.acertada, juicio.palabra);
    m_intentos.agrega(
        {lugar.cuestion.enunciado, lugar.respuesta->text().trimmed(), juicio.palabra});
    ui->FlexIntentos->scrollToBottom();
    ui->ccrpAniEureka->carga(juicio.acertada ? Sesión().AVIEureka() : Sesión().AVIError(),
                             juicio.acertada ? u"EUREKA"_s : u"ERROR"_s);
    ui->ccrpAniEureka->reproduce(ReproductorAVI::Modo::UnaVez);
}
