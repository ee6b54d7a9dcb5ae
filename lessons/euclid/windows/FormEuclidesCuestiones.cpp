// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/FormEuclidesCuestiones.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/answers/LectorDeRespuestas.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormEuclidesCuestiones.h"

using namespace Qt::Literals::StringLiterals;

FormEuclidesCuestiones::FormEuclidesCuestiones(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormEuclidesCuestiones>()),
      m_intentos({u"a"_s, u"b"_s, u"n"_s, Traduce(u"Resultado"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdProblema->setIcon(Icono(u"COMPROBAR"_s));
    Aspecto::destaca(ui->lblVeredicto);
    ui->ccrpAnimation->carga({}, u"EUREKA0"_s);
    m_intentos.ponColumnasDeTexto({3});
    ui->FlexIntentos->setModel(&m_intentos);
    ui->FlexIntentos->ponTextoVacio(Traduce(u"Aquí se anotan las respuestas que se comprueban."_s));
    ui->FlexIntentos->setTextElideMode(Qt::ElideMiddle);
    new ColumnasRepartidas(ui->FlexIntentos);

    conecta(ui->cmdProblema, &QPushButton::clicked, this,
            &FormEuclidesCuestiones::cmdProblema_Click);
    for (const QLineEdit *campo : {ui->txtP1_0, ui->txtP1_1, ui->TxtN}) {
        conecta(campo, &QLineEdit::returnPressed, this,
                [this] { ui->cmdProblema->animateClick(); });
        conecta(campo, &QLineEdit::textChanged, this, &FormEuclidesCuestiones::campo_Change);
    }
}

FormEuclidesCuestiones::~FormEuclidesCuestiones() = default;

/// What is read of each field stands there at each key, judged by nobody; a verdict belongs to the
/// numbers that were judged.
void FormEuclidesCuestiones::campo_Change()
{
    QStringList leidos;
    for (const auto &[nombre, campo] :
         {std::pair(u"a"_s, ui->txtP1_0), {u"b"_s, ui->txtP1_1}, {u"n"_s, ui->TxtN}}) {
        const QString leo = leeExpresion(campo->text()).leo;
        if (!leo.isEmpty())
            leidos << nombre + u": "_s + leo;
    }
    ui->lblLeido->setText(leidos.join(u" · "_s));
    ui->lblVeredicto->clear();
}

void FormEuclidesCuestiones::cmdProblema_Click()
{
    const CuestionEuclides::Juicio juicio =
        m_cuestion.juzga(ui->txtP1_0->text(), ui->txtP1_1->text(), ui->TxtN->text());
    ui->ccrpAnimation->carga(juicio.coincide ? Sesión().AVIEureka() : Sesión().AVIError(),
                             juicio.coincide ? u"EUREKA"_s : u"ERROR"_s);
    ui->ccrpAnimation->reproduce(ReproductorAVI::Modo::UnaVez);
    ui->ccrpAnimation->setAccessibleName(juicio.palabra);
    if (juicio.faltanDatos)
        muestraNeutro(ui->lblVeredicto, juicio.palabra);
    else
        muestraVeredicto(ui->lblVeredicto, juicio.coincide, juicio.palabra);
    m_intentos.agrega({ui->txtP1_0->text().trimmed(), ui->txtP1_1->text().trimmed(),
                       ui->TxtN->text().trimmed(), juicio.palabra});
    ui->FlexIntentos->scrollToBottom();
}
