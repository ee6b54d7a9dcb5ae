// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/FormPracticasClase.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/ModeloFilas.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPracticasClase.h"

#include <QDir>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The words of the first columns stand on the left.
void rellena(Rejilla *rejilla, const QStringList &cabeceras, const QList<QStringList> &filas,
             const QList<int> &deTexto)
{
    auto *modelo = new ModeloFilas(cabeceras, rejilla);
    modelo->ponColumnasDeTexto(deTexto);
    const QAbstractItemModel *anterior = rejilla->model();
    delete rejilla->findChild<ColumnasRepartidas *>();
    rejilla->setModel(modelo);
    delete anterior;
    new ColumnasRepartidas(rejilla);
    modelo->ponFilas(filas);
}

} // namespace

FormPracticasClase::FormPracticasClase(QWidget *padre) : QWidget(padre) {}

FormPracticasClase::~FormPracticasClase() = default;

void FormPracticasClase::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    if (!ui)
        evento(this, [this] { construye(); });
}

void FormPracticasClase::construye()
{
    ui = std::make_unique<Ui::FormPracticasClase>();
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblErrores, 1.15);
    ui->cmdCarpeta->setIcon(Icono(u"ABRIR"_s));
    ui->FlexClase->ponTextoVacio(
        Traduce(u"Cada alumno guarda sus resultados en «Historia»; reúnalos en una carpeta y "
                "ábrala aquí."_s));
    for (Rejilla *rejilla : {ui->FlexClase, ui->FlexErrores})
        rejilla->setTabKeyNavigation(false);
    conecta(ui->cmdCarpeta, &QPushButton::clicked, this, &FormPracticasClase::cmdCarpeta_Click);
    conecta(ui->cmbDeHoja, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &FormPracticasClase::muestra);
    muestra();
}

Tarea<> FormPracticasClase::cmdCarpeta_Click()
{
    const QString carpeta = co_await interlocutor().eligeCarpeta(
        this, Traduce(u"¿En qué carpeta están los resultados?"_s), ui->lblCarpeta->text());
    if (carpeta.isEmpty())
        co_return;
    m_clase = claseDeCarpeta(carpeta);
    ui->lblCarpeta->setText(QDir::toNativeSeparators(carpeta));
    {
        const QSignalBlocker callada(ui->cmbDeHoja);
        ui->cmbDeHoja->clear();
        ui->cmbDeHoja->addItem(Traduce(u"todo lo hecho"_s), QString());
        for (const QString &hoja : hojasDeClase(m_clase))
            ui->cmbDeHoja->addItem(hoja, hoja);
    }
    muestra();
}

void FormPracticasClase::muestra()
{
    const QString hoja = ui->cmbDeHoja->currentData().toString();
    const RejillaDeClase rejilla = rejillaDeClase(m_clase, hoja);
    rellena(ui->FlexClase, rejilla.cabeceras, rejilla.filas, {0});
    rellena(
        ui->FlexErrores,
        {Traduce(u"Ejercicio"_s), Traduce(u"Error"_s), Traduce(u"Alumnos"_s), Traduce(u"Veces"_s)},
        erroresDeClase(m_clase, hoja), {0, 1});
    QString texto;
    if (!ui->lblCarpeta->text().isEmpty())
        texto = Traduce(u"Alumnos: %1. En cada celda, los acertados sin ayuda de los que hizo."_s)
                    .arg(m_clase.alumnos.size());
    if (!m_clase.rechazados.isEmpty())
        texto += u' ' + Traduce(u"No se han leído: %1."_s).arg(m_clase.rechazados.join(u"; "_s));
    muestraNeutro(ui->lblClase, texto);
}
