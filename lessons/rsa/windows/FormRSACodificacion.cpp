// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSACodificacion.h"

#include "lessons/rsa/steps/PasosDeCifrado.h"
#include "lessons/rsa/windows/FormRSAAtaques.h"
#include "lessons/rsa/windows/FormRSABloques.h"
#include "lessons/rsa/windows/FormRSAComun.h"
#include "lessons/rsa/windows/FormRSATexto.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRSACodificacion.h"

#include <QHeaderView>
#include <utility>

using namespace Qt::Literals::StringLiterals;

FormRSACodificacion::FormRSACodificacion(std::shared_ptr<ClsRSA> clave, QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRSACodificacion>()),
      m_clave(std::move(clave)),
      m_bloques(Traduce(u"^Texto codificado"_s)),
      m_pasos(new PanelDePasos(u"Codificación RSA"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    m_codificar =
        corridaDe(ui->cmdCodificar, u"CODIFICAR"_s, Traduce(u"Detener la codificación"_s));
    m_descodificar =
        corridaDe(ui->cmdDescodificar, u"DESCODIFICAR"_s, Traduce(u"Detener la descodificación"_s));
    ui->FlexTextoCodificado->setModel(&m_bloques);
    ui->FlexTextoCodificado->ponTextoVacio(Traduce(u"Aquí aparece un número por cada paquete"_s));
    ui->FlexTextoCodificado->setItemDelegate(new FormRSABloques(ui->FlexTextoCodificado));
    QHeaderView *columna = ui->FlexTextoCodificado->horizontalHeader();
    columna->setSectionResizeMode(QHeaderView::Stretch);
    ui->FlexTextoCodificado->verticalHeader()->setMinimumSectionSize(1);
    conecta(columna, &QHeaderView::sectionResized, this, &FormRSACodificacion::ajustaFilas);
    conecta(ui->cmdCodificar, &QPushButton::clicked, this,
            &FormRSACodificacion::cmdCodificar_Click);
    conecta(ui->cmdDescodificar, &QPushButton::clicked, this,
            &FormRSACodificacion::cmdDescodificar_Click);
    conecta(ui->txtTextoOriginal, &FormRSATexto::textChanged, this,
            &FormRSACodificacion::txtTextoOriginal_Change);
}

FormRSACodificacion::~FormRSACodificacion() = default;

void FormRSACodificacion::permiteCodificar(bool permitido)
{
    ui->cmdCodificar->setEnabled(permitido);
    ui->cmdDescodificar->setEnabled(permitido);
}

/// All rows are as high as the longest number asks for: measuring each would take seconds.
void FormRSACodificacion::ajustaFilas()
{
    qsizetype cifras = 0;
    for (const QStringList &fila : m_bloques.filas())
        cifras = std::max(cifras, fila.constFirst().size());
    const Rejilla *rejilla = ui->FlexTextoCodificado;
    rejilla->verticalHeader()->setDefaultSectionSize(
        FormRSABloques::alto(rejilla->fontMetrics(), cifras, rejilla->columnWidth(0)));
}

/// An objection is about the text that was to be encrypted.
void FormRSACodificacion::txtTextoOriginal_Change()
{
    if (std::exchange(m_rechazado, false))
        ui->lblEstadoCodigo->clear();
}

/// A click on the button of a run: whether it is to begin. One that is on is stopped.
bool FormRSACodificacion::empiezaCon(BotonDeCorrida *boton) const
{
    boton->detiene();
    return !m_codificar->enMarcha() && !m_descodificar->enMarcha();
}

Tarea<> FormRSACodificacion::cmdCodificar_Click()
{
    const QString texto = ui->txtTextoOriginal->toPlainText();
    if (!empiezaCon(m_codificar))
        co_return;
    m_rechazado = !seCodifica(ui->lblEstadoCodigo, texto);
    if (m_rechazado)
        co_return;
    if (m_clave->r() < 1) {
        muestraVeredicto(ui->lblEstadoCodigo, false,
                         Traduce(u"Cada paquete ha de tener al menos un carácter."_s));
        co_return;
    }
    const ClaveEnCifras clave = enCifras(*m_clave);
    const auto marcha = m_codificar->empieza(m_tareas.billete());
    const QStringList bloques = co_await m_clave->Codifica(texto, marcha.billete());
    muestra(bloques);
    m_pasos->pon(bloques.isEmpty() ? Pasos() : pasosDeCifrado(clave, texto));
}

void FormRSACodificacion::muestra(const QStringList &bloques)
{
    QList<QStringList> filas;
    filas.reserve(bloques.size());
    for (const QString &bloque : bloques)
        filas << QStringList{bloque};
    m_bloques.ponFilas(filas);
    ajustaFilas();
    muestraNeutro(ui->lblEstadoCodigo,
                  Traduce(u"Paquetes: %1"_s).arg(formatoEntero(bloques.size())));
}

Tarea<> FormRSACodificacion::cmdDescodificar_Click()
{
    if (!empiezaCon(m_descodificar))
        co_return;
    QStringList bloques;
    bloques.reserve(m_bloques.filas().size());
    for (const QStringList &fila : m_bloques.filas())
        bloques << fila.constFirst();
    const auto marcha = m_descodificar->empieza(m_tareas.billete());
    const QString texto = co_await m_clave->DesCodifica(bloques, marcha.billete());
    ui->txtTextoOriginal->ponTexto(texto);
}
