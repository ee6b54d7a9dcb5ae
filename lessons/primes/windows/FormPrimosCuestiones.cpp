// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimosCuestiones.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/controls/CampoLargo.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/answers/LectorDeRespuestas.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPrimosCuestiones.h"

using namespace Qt::Literals::StringLiterals;

FormPrimosCuestiones::FormPrimosCuestiones(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormPrimosCuestiones>()),
      m_intentos({Traduce(u"Primo 1º"_s), Traduce(u"Primo 2º"_s), Traduce(u"Resultado"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    m_txtPrimo = {ui->txtPrimo_0, ui->txtPrimo_1};
    Aspecto::destaca(ui->lblCuestiones);
    Aspecto::destaca(ui->lblVeredicto, 1.1);
    ui->cmdProblema->setIcon(Icono(u"COMPROBAR"_s));
    ui->ccrpAniEureka->carga({}, u"EUREKA0"_s);
    ui->LabelEnunciado1->setText(ui->LabelEnunciado1->text() +
                                 QString::number(m_cuestion.digitosPedidos()) +
                                 Traduce(u" dígitos."_s));
    ui->txtProducto->setReadOnly(true);
    new LineasSegunTexto(ui->txtProducto, 2, 6);
    m_intentos.ponColumnasDeTexto({2});
    ui->FlexIntentos->setModel(&m_intentos);
    ui->FlexIntentos->ponTextoVacio(Traduce(u"Aquí se anotan las respuestas que se comprueban."_s));
    ui->FlexIntentos->setTextElideMode(Qt::ElideMiddle);
    new ColumnasRepartidas(ui->FlexIntentos);

    conecta(ui->cmdProblema, &QPushButton::clicked, this, &FormPrimosCuestiones::cmdProblema_Click);
    for (CampoLargo *campo : m_txtPrimo) {
        conecta(campo, &CampoLargo::textoCambiado, this, &FormPrimosCuestiones::txtPrimo_Change);
        conecta(campo, &CampoLargo::returnPressed, this,
                [this] { ui->cmdProblema->animateClick(); });
    }
}

FormPrimosCuestiones::~FormPrimosCuestiones() = default;

/// What is read stands there at each key, judged by nobody; a verdict belongs to the primes that
/// were judged.
void FormPrimosCuestiones::txtPrimo_Change()
{
    const std::array rotulos{ui->lblLeido_0, ui->lblLeido_1};
    for (std::size_t i = 0; i < rotulos.size(); ++i)
        rotulos.at(i)->setText(leeExpresion(m_txtPrimo.at(i)->text()).leo);
    ui->lblVeredicto->clear();
}

void FormPrimosCuestiones::cmdProblema_Click()
{
    ui->lblVeredicto->clear();
    const auto primo1 = primoDe(m_txtPrimo[0]);
    const auto primo2 = primo1 ? primoDe(m_txtPrimo[1]) : std::nullopt;
    if (!primo2)
        return;
    const QString binario = binarioDelProducto(*primo1, *primo2);
    if (binario.isEmpty())
        return;
    ui->LabelProducto->setText(Traduce(u"Expresión binaria del producto: "_s) +
                               QString::number(binario.size()) + Traduce(u" dígitos"_s));
    muestraJuicio(m_cuestion.juzga(*primo1, *primo2, binario), binario.size());
}

/// The prime that a field stands for; without one, the focus is back in the field.
std::optional<QString> FormPrimosCuestiones::primoDe(CampoLargo *campo)
{
    if (campo->text().trimmed().isEmpty())
        muestraNeutro(ui->lblVeredicto, Traduce(u"Escriba una respuesta."_s));
    const QString numero = Evalua(campo->text());
    const bool evaluado = !numero.isEmpty() && !esError(numero);
    if (evaluado && EsPrimo(numero))
        return numero;
    if (evaluado) {
        interlocutor().avisa(this, Interlocutor::Icono::Informacion,
                             Traduce(u"El número "_s) + numero + Traduce(u" no es primo"_s),
                             Traduce(u"Solución errónea"_s));
    }
    campo->setFocus();
    return {};
}

/// Writes the binary digits of the product into its field; empty when there is none.
QString FormPrimosCuestiones::binarioDelProducto(const QString &primo1, const QString &primo2)
{
    QString expresion = u"("_s + primo1 + u")*("_s + primo2 + u")"_s;
    const QString producto = Evalua(expresion);
    if (esError(producto))
        return {};
    const QString binario = EnBase(2, producto);
    const bool hayCifras = !binario.isEmpty() && binario.front().isDigit();
    ui->txtProducto->setText(hayCifras ? binario : QString());
    return ui->txtProducto->text();
}

void FormPrimosCuestiones::muestraJuicio(CuestionDosPrimos::Juicio juicio, qsizetype digitos)
{
    using Juicio = CuestionDosPrimos::Juicio;
    const bool acertada = juicio == Juicio::Acertada;
    QString texto = Traduce(u"¡Correcto!"_s);
    if (juicio == Juicio::Lejanos)
        texto = Traduce(u"Los dos primos no tienen casi las mismas cifras."_s);
    else if (!acertada)
        texto = Traduce(u"El producto tiene %1 dígitos binarios y no %2."_s)
                    .arg(digitos)
                    .arg(m_cuestion.digitosPedidos());
    muestraVeredicto(ui->lblVeredicto, acertada, texto);
    m_intentos.agrega({m_txtPrimo[0]->text().trimmed(), m_txtPrimo[1]->text().trimmed(), texto});
    ui->FlexIntentos->scrollToBottom();
    ui->ccrpAniEureka->carga(acertada ? Sesión().AVIEureka() : Sesión().AVIError(),
                             acertada ? u"EUREKA"_s : u"ERROR"_s);
    ui->ccrpAniEureka->reproduce(ReproductorAVI::Modo::UnaVez);
}
