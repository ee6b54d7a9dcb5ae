// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/FormRecursion3Capicuas.h"

#include "lessons/recursion/functions/PasosDeCapicua.h"
#include "lessons/recursion/functions/windows/FormRecursion3PintorDeNumeros.h"
#include "shell/access/Anuncio.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion3Capicuas.h"

#include <QHeaderView>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Laying out thousands of digits takes some milliseconds.
constexpr auto PasoDePantalla = 100ms;

const QColor ColorDeCapicua(192, 0, 0);

} // namespace

FormRecursion3Capicuas::FormRecursion3Capicuas(std::shared_ptr<Parada> parada, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion3Capicuas>()),
      m_sumas(
          {Traduce(u"Paso"_s), Traduce(u"Número"_s), Traduce(u"Invertido"_s), Traduce(u"Suma"_s)}),
      m_tareas(this, std::move(parada))
{
    ui->setupUi(this);
    traduceVentana(this);
    m_corrida =
        new BotonDeCorrida(ui->cmdCap, BotonDeCorrida::calcular(), BotonDeCorrida::detener());
    Aspecto::destaca(ui->lblPregunta, 1.15);
    ponColor(QApplication::palette().highlight().color());
    preparaRejilla();
    m_pantalla.setInterval(PasoDePantalla);

    conecta(ui->cmdCap, &QPushButton::clicked, this, &FormRecursion3Capicuas::cmdCap_Click);
    conecta(ui->TxtCapInicial, &CampoLargo::textoCambiado, this,
            &FormRecursion3Capicuas::TxtCapInicial_Change);
    conecta(ui->TxtCapInicial, &CampoLargo::returnPressed, this, &FormRecursion3Capicuas::empieza);
    conecta(m_corrida, &BotonDeCorrida::terminada, this, &FormRecursion3Capicuas::termina);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormRecursion3Capicuas::muestraAvance);
    TxtCapInicial_Change();
}

FormRecursion3Capicuas::~FormRecursion3Capicuas() = default;

void FormRecursion3Capicuas::preparaRejilla()
{
    ui->FlexCap->setModel(&m_sumas);
    ui->FlexCap->setItemDelegate(new FormRecursion3PintorDeNumeros(this));
    ui->FlexCap->setTextElideMode(Qt::ElideMiddle);
    ui->FlexCap->ponTextoVacio(Traduce(u"Aquí aparecerán las sumas, las 200 primeras"_s));
    auto *cabecera = ui->FlexCap->horizontalHeader();
    cabecera->setSectionResizeMode(QHeaderView::Stretch);
    // Not by its contents, which would be measured with each of the rows that come two hundred at a
    // time.
    cabecera->setSectionResizeMode(0, QHeaderView::Interactive);
    cabecera->resizeSection(0, fontMetrics().horizontalAdvance(u"00000000"_s));
}

void FormRecursion3Capicuas::TxtCapInicial_Change()
{
    ui->cmdCap->setEnabled(!ui->TxtCapInicial->text().trimmed().isEmpty());
    // Why a start was refused is no word about another.
    if (m_capicua && m_capicua->numSumas() == 0)
        muestraNeutro(ui->lblAvance, {});
}

void FormRecursion3Capicuas::cmdCap_Click()
{
    ponColor(QApplication::palette().highlight().color());
    if (m_corrida->enMarcha())
        m_corrida->detiene();
    else
        empieza();
}

void FormRecursion3Capicuas::empieza()
{
    if (m_corrida->enMarcha())
        return;
    ponColor(QApplication::palette().highlight().color());
    muestraNeutro(ui->lblAvance, {});
    if (!ui->TxtCapInicial->text().trimmed().isEmpty())
        m_tareas.lanza(corre());
}

Tarea<> FormRecursion3Capicuas::corre()
{
    const BotonDeCorrida::Marcha marcha = m_corrida->empieza(m_tareas.billete());
    // An emptied field would disable the button that stops the run.
    ui->TxtCapInicial->setReadOnly(true);
    m_sumas.ponFilas({});
    Q_EMIT hayPasos({});
    const auto capicua = std::make_shared<Capicua>();
    m_capicua = capicua;
    m_pantalla.start();
    const Capicua::Fin fin = co_await capicua->busca(ui->TxtCapInicial->text(), marcha.billete());
    if (!marcha.vigente())
        co_return;
    muestraFin(fin);
    Q_EMIT hayPasos(pasosDeCapicua(m_capicua->numeros(),
                                   fin == Capicua::Fin::Hallado &&
                                       m_capicua->numSumas() == m_capicua->numeros().size() - 1));
}

void FormRecursion3Capicuas::termina()
{
    m_pantalla.stop();
    ui->TxtCapInicial->setReadOnly(false);
}

void FormRecursion3Capicuas::ponColor(const QColor &color)
{
    QPalette colores = QApplication::palette();
    colores.setColor(QPalette::Text, color);
    ui->TxtCapFinal->setPalette(colores);
    ponTira();
}

/// On a dark ground the digits, whose colours are made for paper, stand on a strip of it.
void FormRecursion3Capicuas::ponTira()
{
    if (!Aspecto::esOscuro()) {
        ui->TxtCapFinal->setExtraSelections({});
        return;
    }
    QTextEdit::ExtraSelection tira;
    tira.cursor = QTextCursor(ui->TxtCapFinal->document());
    tira.cursor.select(QTextCursor::Document);
    tira.format.setBackground(Qt::white);
    ui->TxtCapFinal->setExtraSelections({tira});
}

void FormRecursion3Capicuas::changeEvent(QEvent *suceso)
{
    QWidget::changeEvent(suceso);
    if (suceso->type() != QEvent::PaletteChange)
        return;
    const bool hallado = ui->TxtCapFinal->palette().color(QPalette::Text) == ColorDeCapicua;
    ponColor(hallado ? ColorDeCapicua : QApplication::palette().highlight().color());
}

void FormRecursion3Capicuas::muestraAvance()
{
    if (m_capicua->numSumas() == 0)
        return;
    ui->TxtCapFinal->setText(m_capicua->actual());
    ponTira();
    muestraSumas();
    ui->lblAvance->setText(
        Traduce(u"Sumas: %1 · Cifras: %2"_s)
            .arg(formatoEntero(m_capicua->numSumas()), formatoEntero(m_capicua->actual().size())));
}

void FormRecursion3Capicuas::muestraSumas()
{
    const QStringList &numeros = m_capicua->numeros();
    for (qsizetype k = m_sumas.filas().size(); k + 1 < numeros.size(); ++k)
        m_sumas.agrega({QString::number(k + 1), numeros[k], Inverso(numeros[k]), numeros[k + 1]});
}

void FormRecursion3Capicuas::muestraFin(Capicua::Fin fin)
{
    muestraAvance();
    switch (fin) {
    case Capicua::Fin::Hallado:
        ui->TxtCapFinal->setText(m_capicua->actual());
        ponColor(ColorDeCapicua);
        anuncia(ui->lblAvance);
        break;
    case Capicua::Fin::SinValor:
        rechaza(ui->TxtCapInicial, ui->lblAvance,
                Traduce(u"El valor inicial no es una expresión que se pueda calcular, o su "
                        "resultado pasa de 24575 cifras."_s));
        break;
    case Capicua::Fin::Negativo:
        rechaza(ui->TxtCapInicial, ui->lblAvance, Traduce(u"El valor inicial es negativo."_s));
        break;
    case Capicua::Fin::DemasiadasCifras:
        muestraVeredicto(ui->lblAvance, false,
                         Traduce(u"Sumas: %1. El número siguiente tiene demasiadas cifras."_s)
                             .arg(formatoEntero(m_capicua->numSumas())));
        break;
    case Capicua::Fin::Detenida:
        break;
    }
}
