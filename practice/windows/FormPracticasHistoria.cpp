// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/FormPracticasHistoria.h"

#include "practice/engine/Banco.h"
#include "practice/sheets/Resultados.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/ModeloFilas.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPracticasHistoria.h"

#include <QDate>
#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

QString resultadoDe(const Hecho &hecho)
{
    switch (hecho.estado) {
    case EstadoDeEjercicio::NoContestado:
        return Traduce(u"sin contestar"_s);
    case EstadoDeEjercicio::Fallado:
        return Traduce(u"fallado"_s);
    case EstadoDeEjercicio::SolucionVista:
        return Traduce(u"con la solución a la vista"_s);
    case EstadoDeEjercicio::Acertado:
        break;
    }
    if (hecho.sinAyuda())
        return Traduce(u"acertado sin ayuda"_s);
    return hecho.pistas > 0 ? Traduce(u"acertado con pistas"_s)
                            : Traduce(u"acertado al reintentar"_s);
}

QStringList filaDe(const Hecho &hecho)
{
    const TipoDeEjercicio *tipo = tipoDeEjercicio(hecho.clave);
    return {QLocale().toString(QDate::fromJulianDay(hecho.dia), QLocale::ShortFormat),
            tipo ? Traduce(tipo->titulo) : hecho.clave,
            QString::number(hecho.nivel),
            resultadoDe(hecho),
            QString::number(hecho.intentos),
            formatoTiempo(std::chrono::milliseconds(hecho.milisegundos)),
            hecho.hoja};
}

} // namespace

FormPracticasHistoria::FormPracticasHistoria(Cuaderno &cuaderno, QWidget *padre)
    : QWidget(padre), m_cuaderno(cuaderno)
{
}

FormPracticasHistoria::~FormPracticasHistoria() = default;

void FormPracticasHistoria::construye()
{
    ui = std::make_unique<Ui::FormPracticasHistoria>();
    ui->setupUi(this);
    traduceVentana(this);
    m_filas = new ModeloFilas({Traduce(u"Día"_s), Traduce(u"Ejercicio"_s), Traduce(u"Nivel"_s),
                               Traduce(u"Resultado"_s), Traduce(u"Intentos"_s),
                               Traduce(u"Tiempo"_s), Traduce(u"Hoja"_s)},
                              this);
    m_filas->ponColumnasDeTexto({0, 1, 3, 6});
    ui->FlexHistoria->setModel(m_filas);
    ui->FlexHistoria->ponTextoVacio(Traduce(u"Aquí se verá lo que practique."_s));
    new ColumnasRepartidas(ui->FlexHistoria);
    ui->FlexHistoria->setTabKeyNavigation(false);
    ui->PicHistoria->ponTextoVacio(Traduce(u"Aquí se verán los ejercicios acertados sin ayuda"_s));
    ui->PicHistoria->ponEjes(Traduce(u"Días"_s), Traduce(u"Ejercicios"_s));
    ui->txtAlumno->setText(Sesión().UserName());
    ui->cmdExportar->setIcon(Icono(u"EXPORTAR"_s));
    conecta(ui->cmdExportar, &QPushButton::clicked, this,
            &FormPracticasHistoria::cmdExportar_Click);
    conecta(ui->cmdBorrar, &QPushButton::clicked, this, &FormPracticasHistoria::cmdBorrar_Click);
    conecta(ui->chkGuardar, &QCheckBox::clicked, this, &FormPracticasHistoria::chkGuardar_Click);
}

void FormPracticasHistoria::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    evento(this, [this] { muestra(); });
}

void FormPracticasHistoria::muestra()
{
    if (!ui)
        construye();
    ui->chkGuardar->setChecked(m_cuaderno.quiereGuardar());
    QList<QStringList> filas;
    for (const Hecho &hecho : m_cuaderno.hechos())
        filas.prepend(filaDe(hecho));
    m_filas->ponFilas(filas);
    for (QPushButton *boton : {ui->cmdExportar, ui->cmdBorrar})
        boton->setEnabled(!filas.isEmpty());
    muestraCurva();
}

/// How many were right without help up to each day, from the first day on.
void FormPracticasHistoria::muestraCurva()
{
    QMap<qint64, int> porDia;
    for (const Hecho &hecho : m_cuaderno.hechos())
        porDia[hecho.dia] += hecho.sinAyuda() ? 1 : 0;
    if (porDia.isEmpty()) {
        ui->PicHistoria->borra();
        return;
    }
    const qint64 primero = porDia.firstKey();
    QList<QPointF> puntos{{0, 0}};
    int suma = 0;
    for (auto dia = porDia.cbegin(); dia != porDia.cend(); ++dia) {
        suma += dia.value();
        puntos << QPointF(static_cast<qreal>(dia.key() - primero + 1), suma);
    }
    ui->PicHistoria->ponPuntos(
        puntos, {0, 0, std::max(puntos.constLast().x(), 7.0), std::max(suma, 5) * 1.0});
}

void FormPracticasHistoria::chkGuardar_Click(bool guarda)
{
    m_cuaderno.ponGuarda(guarda);
    muestraNeutro(ui->lblHistoria, m_cuaderno.aviso());
    muestra();
    Q_EMIT cambiado();
}

Tarea<> FormPracticasHistoria::cmdExportar_Click()
{
    const QStringList filtros{Traduce(u"Tabla para el profesor (*.csv)"_s),
                              Traduce(u"Texto (*.txt)"_s)};
    const auto archivo = co_await interlocutor().eligeArchivoParaGuardar(
        this, Traduce(u"Guardar los resultados"_s), u"resultados.csv"_s, filtros);
    if (archivo.ruta.isEmpty())
        co_return;
    const Resultados resultados{ui->txtAlumno->text(), m_cuaderno.hechos()};
    const bool texto = archivo.ruta.endsWith(u".txt"_s, Qt::CaseInsensitive);
    escribeArchivo(archivo.ruta,
                   texto ? resultadosEnTexto(resultados).toUtf8() : resultadosEnCsv(resultados));
    muestraNeutro(ui->lblHistoria, Traduce(u"Guardado en %1"_s).arg(archivo.ruta));
}

Tarea<> FormPracticasHistoria::cmdBorrar_Click()
{
    const bool si = co_await interlocutor().preguntaSiNo(
        this, Traduce(u"¿Olvidar todo lo que ha practicado? No se puede deshacer."_s),
        Traduce(u"Empezar de nuevo"_s));
    if (!si)
        co_return;
    muestraNeutro(ui->lblHistoria, m_cuaderno.borraTodo());
    muestra();
    Q_EMIT cambiado();
}
