#include "lessons/recursion/functions/windows/FormRecursion3Capicuas.h"

#include "lessons/recursion/functions/windows/FormRecursion3PintorDeNumeros.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCalculo.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion3Capicuas.h"

#include <QHeaderView>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Laying out thousands of digits takes some milliseconds.
constexpr auto PasoDePantalla = 100ms;

const QColor ColorDeCapicua(192, 0, 0);

} // namespace

FormRecursion3Capicuas::FormRecursion3Capicuas(Corrida &corrida, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion3Capicuas>()),
      m_corrida(corrida),
      m_sumas(
          {Traduce(u"Paso"_s), Traduce(u"Número"_s), Traduce(u"Invertido"_s), Traduce(u"Suma"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    muestraCalcular(ui->cmdCap);
    Aspecto::destaca(ui->lblPregunta, 1.15);
    ponColor(QApplication::palette().highlight().color());
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
    m_pantalla.setInterval(PasoDePantalla);

    conecta(ui->cmdCap, &QPushButton::clicked, this, &FormRecursion3Capicuas::cmdCap_Click);
    conecta(ui->TxtCapInicial, &CampoLargo::textoCambiado, this,
            &FormRecursion3Capicuas::TxtCapInicial_Change);
    conecta(ui->TxtCapInicial, &CampoLargo::returnPressed, this, &FormRecursion3Capicuas::empieza);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormRecursion3Capicuas::muestraAvance);
    TxtCapInicial_Change();
}

FormRecursion3Capicuas::~FormRecursion3Capicuas() = default;

QAbstractButton *FormRecursion3Capicuas::botonDeParada() const
{
    return m_calculando ? ui->cmdCap : nullptr;
}

void FormRecursion3Capicuas::TxtCapInicial_Change()
{
    ui->cmdCap->setEnabled(!ui->TxtCapInicial->text().trimmed().isEmpty());
}

void FormRecursion3Capicuas::cmdCap_Click()
{
    if (!m_calculando) {
        empieza();
        return;
    }
    m_corrida.detener();
    m_calculando = false;
    muestraCalcular(ui->cmdCap);
}

void FormRecursion3Capicuas::empieza()
{
    // A run that was told to stop must see the flag before it is cleared for another.
    const bool parando = m_corrida.enCurso() && m_corrida.detenida();
    if (m_calculando || parando)
        return;
    m_corrida.permitir();
    ponColor(QApplication::palette().highlight().color());
    ui->lblAvance->clear();
    if (ui->TxtCapInicial->text().trimmed().isEmpty())
        return;
    const Corrida::Tramo tramo(m_corrida);
    const auto alFinal = qScopeGuard([this] { termina(); });
    m_calculando = true;
    // An emptied field would disable the button that stops the run.
    ui->TxtCapInicial->setReadOnly(true);
    muestraDetener(ui->cmdCap);
    m_sumas.ponFilas({});
    m_pantalla.start();
    muestraFin(m_capicua.busca(ui->TxtCapInicial->text(), m_corrida));
}

void FormRecursion3Capicuas::termina()
{
    m_pantalla.stop();
    m_calculando = false;
    ui->TxtCapInicial->setReadOnly(false);
    muestraCalcular(ui->cmdCap);
}

/// The field keeps the ground of the pictures in either theme: its colours are made for it.
void FormRecursion3Capicuas::ponColor(const QColor &color)
{
    QPalette colores = QApplication::palette();
    colores.setColor(QPalette::Base, Aspecto::lienzo());
    colores.setColor(QPalette::Text, color);
    ui->TxtCapFinal->setPalette(colores);
}

void FormRecursion3Capicuas::muestraAvance()
{
    if (m_capicua.numSumas() == 0)
        return;
    ui->TxtCapFinal->setText(m_capicua.actual());
    muestraSumas();
    ui->lblAvance->setText(
        Traduce(u"Sumas: %1 · Cifras: %2"_s)
            .arg(formatoEntero(m_capicua.numSumas()), formatoEntero(m_capicua.actual().size())));
}

void FormRecursion3Capicuas::muestraSumas()
{
    const QStringList &numeros = m_capicua.numeros();
    for (qsizetype k = m_sumas.filas().size(); k + 1 < numeros.size(); ++k)
        m_sumas.agrega({QString::number(k + 1), numeros[k], Inverso(numeros[k]), numeros[k + 1]});
}

void FormRecursion3Capicuas::muestraFin(Capicua::Fin fin)
{
    muestraAvance();
    if (fin == Capicua::Fin::Hallado) {
        ui->TxtCapFinal->setText(m_capicua.actual());
        ponColor(ColorDeCapicua);
        return;
    }
    if (fin == Capicua::Fin::SinNumero) {
        ui->lblAvance->setText(
            m_capicua.numSumas() == 0
                ? Traduce(u"El valor inicial no es un número positivo."_s)
                : Traduce(u"Sumas: %1. El número siguiente tiene demasiadas cifras."_s)
                      .arg(formatoEntero(m_capicua.numSumas())));
    }
}
