// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2Representacion.h"

#include "lessons/recursion/modular/TextoDeDefinicion.h"
#include "shell/access/Anuncio.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRecursion2Representacion.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto PasoDeEureka = 150ms;
constexpr int NumFotogramas = 4;
/// The lamp flashes three times and stays alight.
constexpr int FotogramasDeEureka = 3 * NumFotogramas;

} // namespace

FormRecursion2Representacion::FormRecursion2Representacion(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRecursion2Representacion>()),
      m_pasos(new PanelDePasos(u"Recursión modular"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdCalcular->setIcon(Icono(u"CALCULAR"_s));
    // Lines between values that jump about would hide that they come back.
    ui->PicFunción->ponUnida(false);
    ui->PicFunción->ponTextoVacio(
        Traduce(u"Elija un módulo y pulse «Calcular» para ver los 250 primeros valores"_s));
    ui->PicFunción->ponEjes(u"n"_s, u"f(n)"_s);
    ui->PicFunción->ponLectura(ui->lblPunto);
    QSizePolicy conSitio = ui->ImgEureka->sizePolicy();
    conSitio.setRetainSizeWhenHidden(true);
    ui->ImgEureka->setSizePolicy(conSitio);
    m_timerEureka.setObjectName(u"TimerEureka"_s);
    m_timerEureka.setInterval(PasoDeEureka);

    conecta(ui->cmdCalcular, &QPushButton::clicked, this,
            &FormRecursion2Representacion::cmdCalcular_Click);
    conecta(ui->TxtMódulo, &QLineEdit::textEdited, ui->lblAvisoDeModulo, &QWidget::hide);
    conecta(ui->TxtMódulo, &QLineEdit::returnPressed, this,
            &FormRecursion2Representacion::cmdCalcular_Click);
    conecta(ui->TxtMódulo, &QLineEdit::editingFinished, this,
            &FormRecursion2Representacion::TxtModulo_Validate);
    conecta(&m_timerEureka, &QTimer::timeout, this,
            &FormRecursion2Representacion::TimerEureka_Timer);
    conecta(ui->PicFunción, &Grafica::senalado, this, &FormRecursion2Representacion::senalaPunto);
    limpia();
}

FormRecursion2Representacion::~FormRecursion2Representacion() = default;

/// Where there is no room for them side by side, the period stands below the modulus.
void FormRecursion2Representacion::resizeEvent(QResizeEvent *suceso)
{
    QWidget::resizeEvent(suceso);
    const bool cabenJuntos = width() > fontMetrics().horizontalAdvance(u'0') * 80;
    ui->filaPaneles->setDirection(cabenJuntos ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void FormRecursion2Representacion::ponDefinicion(const DefinicionRecurrente &definicion)
{
    m_definicion = definicion;
    ui->lblDefinicion->setText(textoDeDefinicion(definicion));
    limpia();
}

void FormRecursion2Representacion::limpia()
{
    m_sucesion.reset();
    ui->lblAvisoDeModulo->hide();
    m_timerEureka.stop();
    ui->ImgEureka->hide();
    ui->txtInicioPeriodo->clear();
    ui->TxtPeriodo->clear();
    ui->PicFunción->borra();
    senalaPunto(-1);
    Q_EMIT sucesionCambiada();
}

void FormRecursion2Representacion::cmdCalcular_Click()
{
    if (aceptaModulo())
        return;
    ui->TxtMódulo->setFocus();
    ui->TxtMódulo->selectAll();
}

/// The field is left after it was edited. Enter and the button have accepted its text already;
/// turning to another program is not leaving it.
void FormRecursion2Representacion::TxtModulo_Validate()
{
    if (ui->TxtMódulo->isModified() && window()->isActiveWindow())
        aceptaModulo();
}

void FormRecursion2Representacion::olvidaEdicion()
{
    ui->TxtMódulo->setModified(false);
}

/// Whether the text of the field is a modulus, which is then the one in use.
bool FormRecursion2Representacion::aceptaModulo()
{
    // A message box takes the focus from the field, which must not accept its text again.
    ui->TxtMódulo->setModified(false);
    const QString texto = ui->TxtMódulo->text();
    ui->lblAvisoDeModulo->hide();
    const auto modulo = leeModulo(texto);
    if (!modulo) {
        muestraRechazo(modulo.razon());
        return false;
    }
    calcula(*modulo);
    const QString valor = QString::number(*modulo);
    ui->TxtMódulo->setToolTip(EsNumerico(texto) ? valor : texto + u'=' + valor);
    return true;
}

/// A text that is no modulus changes nothing of what is shown, so it is said what that belongs to.
void FormRecursion2Representacion::muestraRechazo(const NoLeido &razon)
{
    const QString vigente = m_sucesion
                                ? u' ' + Traduce(u"Lo que se ve es de módulo %1."_s)
                                             .arg(formatoEntero(qint64{m_sucesion->modulo()}))
                                : QString();
    muestraVeredicto(ui->lblAvisoDeModulo, false, razon.frase() + vigente);
    ui->lblAvisoDeModulo->show();
}

void FormRecursion2Representacion::calcula(std::int32_t modulo)
{
    limpia();
    m_sucesion.emplace(m_definicion, modulo);
    representa();
    Q_EMIT sucesionCambiada();
    muestraPeriodo();
}

void FormRecursion2Representacion::representa()
{
    constexpr int n = SucesionModular::NumValores;
    QList<QPointF> puntos;
    for (int i = 1; i <= n; ++i)
        puntos << QPointF(i, m_sucesion->valor(i));
    ui->PicFunción->ponPuntos(puntos, QRectF(0, 0, n, n * m_sucesion->escala()));
}

void FormRecursion2Representacion::muestraPeriodo()
{
    const std::optional<PeriodoModular> periodo = m_sucesion->periodo();
    if (!periodo) {
        interlocutor().avisa(
            this, Interlocutor::Icono::Informacion,
            Traduce(u"El periodo es mayor que el conjunto de valores que se examina."_s),
            Traduce(u"Periodo grande"_s));
        return;
    }
    ui->txtInicioPeriodo->setText(QString::number(periodo->inicio));
    ui->TxtPeriodo->setText(QString::number(periodo->longitud));
    ui->PicFunción->ponTramo(periodo->inicio, periodo->inicio + periodo->longitud);
    ui->PicFunción->ponPeriodo(periodo->inicio, periodo->longitud);
    m_fotograma = Aspecto::movimientoReducido() ? FotogramasDeEureka - 1 : 0;
    ui->ImgEureka->setImagen(u"EUREKA%1"_s.arg(m_fotograma % NumFotogramas));
    ui->ImgEureka->show();
    if (!Aspecto::movimientoReducido())
        m_timerEureka.start();
    anuncia(Traduce(u"Periodo: %1, desde %2"_s)
                .arg(ui->TxtPeriodo->text(), ui->txtInicioPeriodo->text()));
}

void FormRecursion2Representacion::TimerEureka_Timer()
{
    ++m_fotograma;
    ui->ImgEureka->setImagen(u"EUREKA%1"_s.arg(m_fotograma % NumFotogramas));
    if (m_fotograma == FotogramasDeEureka - 1 || Aspecto::movimientoReducido())
        m_timerEureka.stop();
}

void FormRecursion2Representacion::senalaPunto(int indice)
{
    if (indice < 0 || !m_sucesion) {
        ui->lblPunto->clear();
        return;
    }
    const int n = indice + 1;
    ui->lblPunto->setText(
        u"f(%1) = %2"_s.arg(formatoEntero(qint64{n}), formatoEntero(qint64{m_sucesion->valor(n)})));
}
