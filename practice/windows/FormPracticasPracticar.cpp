// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/FormPracticasPracticar.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"
#include "practice/progress/LaminaDelCurso.h"
#include "shell/access/Anuncio.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/NumerosEnPantalla.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormPracticasPracticar.h"

#include <QRandomGenerator>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How often an exercise is drawn again until it is another one.
constexpr int SorteosComoMucho = 20;
/// A few steps and what is below them.
constexpr int AltoDePasos = 260;

QString razonDe(const Propuesta &propuesta)
{
    switch (propuesta.razon) {
    case Propuesta::Repaso:
        return Traduce(u"repaso"_s);
    case Propuesta::Nuevo:
        return Traduce(u"tipo nuevo"_s);
    case Propuesta::Siguiente:
    case Propuesta::Todo:
        return {};
    }
    return {};
}

} // namespace

FormPracticasPracticar::FormPracticasPracticar(Cuaderno &cuaderno, QWidget *padre)
    : QWidget(padre),
      m_cuaderno(cuaderno),
      ui(std::make_unique<Ui::FormPracticasPracticar>()),
      m_pasos(new PanelDePasos(u"Solución"_s, this)),
      m_relojDeHoja(new QTimer(this)),
      m_serie(QRandomGenerator::system()->generate64())
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblEnunciado, 1.15);
    ui->cmdComprobar->setIcon(Icono(u"COMPROBAR"_s));
    ui->cmdSiguiente->setIcon(Icono(u"SIGUIENTE"_s));
    ui->columna->insertWidget(ui->columna->indexOf(ui->lblProgreso), m_pasos, 100);
    m_pasos->setObjectName(u"PanelSolucion"_s);
    m_pasos->setMinimumHeight(AltoDePasos);
    m_pasos->hide();
    m_relojDeHoja->setInterval(1s);
    ui->lblAviso->setText(m_cuaderno.aviso());
    ponHoja(false);
    rellenaLecciones();
    conectaControles();
}

FormPracticasPracticar::~FormPracticasPracticar() = default;

void FormPracticasPracticar::conectaControles()
{
    const auto elegido = qOverload<int>(&QComboBox::currentIndexChanged);
    using Yo = FormPracticasPracticar;
    conecta(ui->cmbLeccion, elegido, this, &Yo::cmbLeccion_Change);
    conecta(ui->cmbTipo, elegido, this, &Yo::cmbTipo_Change);
    conecta(ui->cmbNivel, elegido, this, &Yo::cmbNivel_Change);
    conecta(ui->txtRespuesta, &QLineEdit::textChanged, this, &Yo::txtRespuesta_Change);
    conecta(ui->txtRespuesta, &QLineEdit::returnPressed, this, &Yo::cmdComprobar_Click);
    conecta(ui->cmdComprobar, &QPushButton::clicked, this, &Yo::cmdComprobar_Click);
    conecta(ui->cmdPista, &QPushButton::clicked, this, &Yo::cmdPista_Click);
    conecta(ui->cmdSolucion, &QPushButton::clicked, this, &Yo::cmdSolucion_Click);
    conecta(ui->cmdDejarHoja, &QPushButton::clicked, this, &Yo::cmdDejarHoja_Click);
    conecta(m_relojDeHoja, &QTimer::timeout, this, &Yo::relojDeHoja_Timer);
    conecta(ui->cmdSiguiente, &QPushButton::clicked, this, &Yo::cmdSiguiente_Click);
}

void FormPracticasPracticar::rellenaLecciones()
{
    ui->cmbLeccion->addItem(Traduce(u"Lo que toca"_s), QString());
    for (const LeccionDelCurso &leccion : curso()) {
        if (!clavesDelBanco(leccion.clave).isEmpty())
            ui->cmbLeccion->addItem(Traduce(leccion.titulo), leccion.clave);
    }
    ui->cmbNivel->addItem(Traduce(u"El que toca"_s), 0);
    for (int nivel = 1; nivel <= Niveles; ++nivel)
        ui->cmbNivel->addItem(QString::number(nivel), nivel);
    rellenaTipos();
}

void FormPracticasPracticar::rellenaTipos()
{
    const QSignalBlocker callada(ui->cmbTipo);
    ui->cmbTipo->clear();
    ui->cmbTipo->addItem(Traduce(u"El que toca"_s), QString());
    if (!m_eleccion.leccion.isEmpty()) {
        for (const QString &clave : clavesDelBanco(m_eleccion.leccion))
            ui->cmbTipo->addItem(Traduce(tipoDeEjercicio(clave)->titulo), clave);
    }
    ui->cmbTipo->setCurrentIndex(std::max(0, ui->cmbTipo->findData(m_eleccion.clave)));
    ui->cmbTipo->setEnabled(!m_eleccion.leccion.isEmpty());
}

void FormPracticasPracticar::practica(const Eleccion &eleccion)
{
    m_eleccion = eleccion;
    if (m_hoja)
        cuentaDeHoja();
    ponHoja(false);
    const QSignalBlocker lecciones(ui->cmbLeccion), niveles(ui->cmbNivel);
    ui->cmbLeccion->setCurrentIndex(std::max(0, ui->cmbLeccion->findData(eleccion.leccion)));
    ui->cmbNivel->setCurrentIndex(eleccion.nivel);
    rellenaTipos();
    plantea();
}

void FormPracticasPracticar::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    if (!m_curso)
        evento(this, [this] { plantea(); });
}

void FormPracticasPracticar::cmbLeccion_Change()
{
    m_eleccion = {ui->cmbLeccion->currentData().toString(), {}, m_eleccion.nivel};
    rellenaTipos();
    plantea();
}

void FormPracticasPracticar::cmbTipo_Change()
{
    m_eleccion.clave = ui->cmbTipo->currentData().toString();
    plantea();
}

void FormPracticasPracticar::cmbNivel_Change()
{
    m_eleccion.nivel = ui->cmbNivel->currentData().toInt();
    plantea();
}

/// Draws the next exercise, another one than that in sight.
void FormPracticasPracticar::plantea()
{
    const Propuesta propuesta = propuestaDe(m_eleccion, m_cuaderno.dominios(), Cuaderno::hoy());
    const TipoDeEjercicio *tipo = tipoDeEjercicio(propuesta.clave);
    if (!tipo)
        return;
    const QString anterior = m_curso ? m_curso->ejercicio().enunciado : QString();
    for (int vez = 0; vez < SorteosComoMucho; ++vez) {
        Sorteo sorteo(semillaDe(m_serie, tipo->clave, propuesta.nivel, m_sorteo++));
        m_curso.emplace(*tipo, propuesta.nivel, tipo->genera(propuesta.nivel, sorteo));
        if (m_curso->ejercicio().enunciado != anterior)
            break;
    }
    m_lugar = {};
    muestraEnunciado(propuesta);
    m_reloj.start();
}

void FormPracticasPracticar::muestraEnunciado(const Propuesta &propuesta)
{
    const TipoDeEjercicio *tipo = tipoDeEjercicio(propuesta.clave);
    QStringList partes{Traduce(leccionDelCurso(tipo->leccion())->titulo), Traduce(tipo->titulo),
                       Traduce(u"nivel %1"_s).arg(propuesta.nivel), razonDe(propuesta)};
    partes.removeAll(QString());
    ui->lblQue->setText(partes.join(u" · "_s));
    ui->lblEnunciado->setText(conNumerosEnPantalla(m_curso->ejercicio().enunciado));
    ui->txtRespuesta->clear();
    ui->txtRespuesta->setPlaceholderText(m_curso->ejercicio().ejemplo);
    // The field tells a screen reader what it is to answer.
    ui->txtRespuesta->setAccessibleDescription(m_curso->ejercicio().enunciado);
    ui->lblLeido->clear();
    ui->lblVeredicto->clear();
    ui->lblPistas->clear();
    m_pasos->hide();
    muestraAyudas();
    muestraProgreso();
}

void FormPracticasPracticar::muestraAyudas()
{
    ui->cmdPista->setEnabled(m_curso->pistasVistas() < m_curso->ejercicio().pistas.size());
    ui->cmdPista->setText(m_curso->pistasVistas() == 0 ? Traduce(u"&Pista"_s)
                                                       : Traduce(u"Segunda &pista"_s));
}

/// How far the kind is: of its level that is next, and what was mastered.
void FormPracticasPracticar::muestraProgreso()
{
    const Dominio dominio = m_cuaderno.dominios().value(m_curso->hecho().clave);
    QString texto = Traduce(u"Nivel %1: %2 de las 5 últimas sin ayuda; se domina con 4, en dos "
                            "días distintos."_s)
                        .arg(dominio.propuesto)
                        .arg(dominio.deLasUltimas);
    if (dominio.dominado > 0)
        texto = Traduce(u"Dominado hasta el nivel %1; repaso: %2."_s)
                    .arg(dominio.dominado)
                    .arg(cuandoToca(dominio, Cuaderno::hoy())) +
                (dominio.dominado < Niveles ? u' ' + texto : QString());
    ui->lblProgreso->setText(texto);
}

/// What is read stands there at each key, judged by nobody; a verdict belongs to the answer that
/// was judged.
void FormPracticasPracticar::txtRespuesta_Change()
{
    if (!m_curso)
        return;
    ui->lblLeido->setText(leeRespuesta(ui->txtRespuesta->text(), m_curso->ejercicio().forma).leo);
    ui->lblVeredicto->clear();
}

void FormPracticasPracticar::cmdComprobar_Click()
{
    if (!m_curso)
        return;
    const auto respuesta = m_curso->responde(ui->txtRespuesta->text());
    ui->txtRespuesta->setFocus();
    if (!respuesta.fallo) {
        const bool vacia = respuesta.leida.estado == RespuestaLeida::Vacia;
        muestraNeutro(ui->lblVeredicto,
                      vacia ? Traduce(u"Escriba una respuesta."_s) : respuesta.leida.leo);
        return;
    }
    muestraVeredicto(ui->lblVeredicto, respuesta.fallo->acertada, respuesta.fallo->palabra);
    if (respuesta.cuenta)
        anota();
    if (respuesta.fallo->acertada)
        ui->cmdSiguiente->setFocus();
    else
        ui->txtRespuesta->selectAll();
}

void FormPracticasPracticar::cmdPista_Click()
{
    if (!m_curso)
        return;
    const QString pista = conNumerosEnPantalla(m_curso->pidePista());
    const QString antes = ui->lblPistas->text();
    ui->lblPistas->setText((antes.isEmpty() ? antes : antes + u'\n') +
                           Traduce(u"Pista: %1"_s).arg(pista));
    anuncia(ui->lblPistas);
    muestraAyudas();
    if (m_lugar.enMemoria >= 0 && !m_curso->terminado())
        anota();
    ui->txtRespuesta->setFocus();
}

void FormPracticasPracticar::cmdSolucion_Click()
{
    if (!m_curso)
        return;
    const bool terminado = m_curso->terminado();
    m_pasos->pon(m_curso->pideSolucion());
    m_pasos->show();
    m_pasos->enfoca();
    Q_EMIT aLaVista(m_pasos);
    muestraNeutro(
        ui->lblVeredicto,
        Traduce(u"Una respuesta correcta: %1"_s).arg(respuestaEnPantalla(m_curso->ejercicio())));
    if (!terminado)
        anota();
}

void FormPracticasPracticar::cmdSiguiente_Click()
{
    if (m_hoja)
        dejaEjercicio();
    else
        plantea();
    ui->txtRespuesta->setFocus();
}

void FormPracticasPracticar::anota()
{
    Hecho hecho = m_curso->hecho();
    hecho.milisegundos = m_reloj.elapsed();
    hecho.hoja = m_hoja ? m_hoja->codigo : QString();
    const QString motivo = m_cuaderno.anota(hecho, m_lugar);
    if (motivo.isEmpty())
        ui->lblAviso->setText(m_cuaderno.aviso());
    else
        muestraNeutro(ui->lblAviso, motivo);
    muestraProgreso();
    Q_EMIT anotado();
}
