// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/FormPracticasHojas.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"
#include "practice/progress/Eleccion.h"
#include "practice/sheets/HojaDeEjercicios.h"
#include "practice/windows/ImpresionDeHoja.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPracticasHojas.h"

#include <QPrinter>
#include <QRandomGenerator>
#include <QStandardItemModel>

using namespace Qt::Literals::StringLiterals;

FormPracticasHojas::FormPracticasHojas(QWidget *padre) : QWidget(padre) {}

FormPracticasHojas::~FormPracticasHojas() = default;

void FormPracticasHojas::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    if (!ui)
        evento(this, [this] { construye(); });
}

void FormPracticasHojas::construye()
{
    ui = std::make_unique<Ui::FormPracticasHojas>();
    ui->setupUi(this);
    traduceVentana(this);
    for (QLabel *titulo : {ui->lblHacer, ui->lblUsar})
        Aspecto::destaca(titulo, 1.15);
    ui->cmdImprimir->setIcon(Icono(u"IMPRIMIR"_s));
    ui->cmdGuardarHoja->setIcon(Icono(u"GUARDAR"_s));
    ui->cmbDe->addItem(Traduce(u"Todo el curso"_s), QString());
    for (const LeccionDelCurso &leccion : curso()) {
        if (!clavesDelBanco(leccion.clave).isEmpty())
            ui->cmbDe->addItem(Traduce(leccion.titulo), leccion.clave);
    }
    ui->cmbNivelHoja->addItem(Traduce(u"los tres"_s), 0);
    for (int nivel = 1; nivel <= Niveles; ++nivel)
        ui->cmbNivelHoja->addItem(QString::number(nivel), nivel);
    m_tipos = new QStandardItemModel(this);
    ui->FlexTipos->setModel(m_tipos);
    ui->FlexTipos->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->FlexTipos->setTabKeyNavigation(false);
    new ColumnasRepartidas(ui->FlexTipos);
    conectaControles();
    cmbDe_Change();
    txtCodigo_Change();
}

void FormPracticasHojas::conectaControles()
{
    using Yo = FormPracticasHojas;
    conecta(ui->cmbDe, qOverload<int>(&QComboBox::currentIndexChanged), this, &Yo::cmbDe_Change);
    conecta(ui->cmdCodigo, &QPushButton::clicked, this, &Yo::cmdCodigo_Click);
    conecta(ui->txtCodigo, &QLineEdit::textChanged, this, &Yo::txtCodigo_Change);
    conecta(ui->txtCodigo, &QLineEdit::returnPressed, this, &Yo::cmdHacer_Click);
    conecta(ui->cmdHacer, &QPushButton::clicked, this, &Yo::cmdHacer_Click);
    conecta(ui->cmdImprimir, &QPushButton::clicked, this, &Yo::cmdImprimir_Click);
    conecta(ui->cmdGuardarHoja, &QPushButton::clicked, this, &Yo::cmdGuardarHoja_Click);
}

void FormPracticasHojas::cmbDe_Change()
{
    m_tipos->clear();
    m_tipos->setHorizontalHeaderLabels(
        {Traduce(u"Tipo (ninguno marcado: todos)"_s), Traduce(u"Lección"_s)});
    for (const QString &clave : clavesDelBanco(ui->cmbDe->currentData().toString())) {
        const TipoDeEjercicio *tipo = tipoDeEjercicio(clave);
        auto *nombre = new QStandardItem(Traduce(tipo->titulo));
        nombre->setData(clave);
        nombre->setCheckable(true);
        nombre->setEditable(false);
        auto *leccion = new QStandardItem(Traduce(leccionDelCurso(tipo->leccion())->titulo));
        leccion->setEditable(false);
        m_tipos->appendRow({nombre, leccion});
    }
    ui->FlexTipos->setCurrentIndex(m_tipos->index(0, 0));
}

QList<EncargoDeHoja::Parte> FormPracticasHojas::marcadas() const
{
    const int nivel = ui->cmbNivelHoja->currentData().toInt();
    QList<EncargoDeHoja::Parte> partes;
    for (int fila = 0; fila < m_tipos->rowCount(); ++fila) {
        const QStandardItem *tipo = m_tipos->item(fila);
        if (tipo->checkState() != Qt::Checked)
            continue;
        const QString clave = tipo->data().toString();
        if (nivel > 0)
            partes << EncargoDeHoja::Parte{clave, nivel};
        for (int uno = 1; nivel == 0 && uno <= Niveles; ++uno)
            partes << EncargoDeHoja::Parte{clave, uno};
    }
    return partes;
}

void FormPracticasHojas::cmdCodigo_Click()
{
    EncargoDeHoja encargo{ui->cmbDe->currentData().toString(),
                          ui->cmbNivelHoja->currentData().toInt(), marcadas(),
                          ui->spnCuantos->value(),
                          static_cast<int>(QRandomGenerator::system()->bounded(SeriesDeHoja))};
    if (encargo.partes.size() > MaximoDePartes) {
        muestraVeredicto(ui->lblHojas, false,
                         Traduce(u"Son demasiados tipos: caben %1, y cada nivel de uno cuenta."_s)
                             .arg(MaximoDePartes));
        return;
    }
    ui->txtCodigo->setText(codigoDeHoja(encargo));
    ui->txtCodigo->setFocus();
    ui->txtCodigo->selectAll();
}

/// What stands in the field is read at each key.
void FormPracticasHojas::txtCodigo_Change()
{
    m_encargo.reset();
    const QString codigo = ui->txtCodigo->text();
    const auto leido = leeCodigoDeHoja(codigo);
    if (codigo.trimmed().isEmpty()) {
        muestraNeutro(ui->lblHojas, Traduce(u"Escriba un código, o haga una hoja nueva: quien "
                                            "escriba su código tendrá los mismos ejercicios."_s));
    } else if (const auto *motivo = std::get_if<QString>(&leido)) {
        muestraNeutro(ui->lblHojas, *motivo);
    } else {
        m_encargo = std::get<EncargoDeHoja>(leido);
        muestraNeutro(ui->lblHojas,
                      u"%1 · %2 · %3"_s.arg(codigoDeHoja(*m_encargo), tituloDeHoja(*m_encargo),
                                            Traduce(u"ejercicios: %1"_s).arg(m_encargo->cuantos)));
    }
    for (QPushButton *boton : {ui->cmdHacer, ui->cmdImprimir, ui->cmdGuardarHoja})
        boton->setEnabled(m_encargo.has_value());
}

void FormPracticasHojas::cmdHacer_Click()
{
    if (m_encargo)
        Q_EMIT hacer(*m_encargo, ui->spnMinutos->value());
}

Tarea<> FormPracticasHojas::cmdImprimir_Click()
{
    const EncargoDeHoja encargo = *m_encargo;
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setDocName(codigoDeHoja(encargo));
    const bool elegida =
        co_await interlocutor().eligeImpresora(this, impresora, Traduce(u"Imprimir la hoja"_s));
    if (elegida)
        imprimeHojaDeEjercicios(*impresora, encargo, ui->chkSoluciones->isChecked());
}

Tarea<> FormPracticasHojas::cmdGuardarHoja_Click()
{
    const EncargoDeHoja encargo = *m_encargo;
    const bool conSoluciones = ui->chkSoluciones->isChecked();
    const QStringList filtros{u"PDF (*.pdf)"_s, u"HTML (*.html)"_s};
    const auto archivo = co_await interlocutor().eligeArchivoParaGuardar(
        this, Traduce(u"Guardar la hoja"_s), codigoDeHoja(encargo) + u".pdf"_s, filtros);
    if (archivo.ruta.isEmpty())
        co_return;
    const bool html = archivo.ruta.endsWith(u".html"_s, Qt::CaseInsensitive);
    escribeArchivo(archivo.ruta,
                   html ? hojaEnPagina(encargo, conSoluciones) : hojaEnPdf(encargo, conSoluciones));
    muestraNeutro(ui->lblHojas, Traduce(u"Guardado en %1"_s).arg(archivo.ruta));
}
