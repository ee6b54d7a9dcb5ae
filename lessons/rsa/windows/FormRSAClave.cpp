// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSAClave.h"

#include "bignum/gateway/Azar.h"
#include "lessons/rsa/steps/PasosDeClave.h"
#include "lessons/rsa/windows/FormRSAAtaques.h"
#include "lessons/rsa/windows/FormRSAComun.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/run/Aparte.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Relleno.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRSAClave.h"

#include <QDir>
#include <QRegularExpressionValidator>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// While a number is typed, numbers up to this size are tested at each key; the test of larger ones
/// would be felt in the fingers. In a browser, which reckons ten times slower, the smaller ones.
constexpr qsizetype CifrasAlVuelo = 700;
constexpr qsizetype CifrasAlVueloAparte = 150;

/// What the key's number of characters can hold.
constexpr double MayorR = std::numeric_limits<std::int16_t>::max();

void soloLectura(CampoLargo *campo)
{
    campo->setReadOnly(true);
    campo->viewport()->setBackgroundRole(QPalette::Window);
}

} // namespace

FormRSAClave::FormRSAClave(std::shared_ptr<ClsRSA> clave, QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRSAClave>()),
      m_clave(std::move(clave)),
      m_pasos(new PanelDePasos(u"Clave RSA"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    m_ataques = new FormRSAAtaques(m_clave, m_pasos, this);
    ui->rejillaTamano->addWidget(m_ataques, 2, 0, 1, 4);
    ui->cmdBuzon->setIcon(Icono(u"BUZON"_s));
    ui->cmdPublicarClave->setIcon(Icono(u"PUBLICAR"_s));
    for (QLineEdit *campo : {ui->txtR, ui->TxtNumBits}) {
        static const QRegularExpression cifras(u"[0-9]*"_s);
        campo->setValidator(new QRegularExpressionValidator(cifras, campo));
    }
    for (CampoLargo *campo : {ui->txtQ_0, ui->txtFiQ, ui->txtT})
        soloLectura(campo);
    ui->txtR->setText(u"1"_s);
    m_clave->ponr(1);
    ui->TxtNumBits->setText(QString::number(AleatorioEntre(100, 200)));

    for (const int i : {1, 2}) {
        conecta(txtQ(i), &CampoLargo::editingFinished, this, [this, i] { txtQ_Validate(i); });
        conecta(txtQ(i), &CampoLargo::returnPressed, this, [this, i] { txtQ_Return(i); });
        conecta(txtQ(i), &CampoLargo::textoCambiado, this, &FormRSAClave::muestraEscrita);
    }
    conecta(ui->txtS, &CampoLargo::editingFinished, this, &FormRSAClave::txtS_Validate);
    conecta(ui->txtS, &CampoLargo::returnPressed, this, &FormRSAClave::txtS_Return);
    conecta(ui->txtS, &CampoLargo::textoCambiado, this, &FormRSAClave::muestraEscrita);
    conecta(ui->txtR, &QLineEdit::textChanged, this, &FormRSAClave::txtR_Change);
    conecta(ui->ChkNumBits, &QCheckBox::clicked, this, &FormRSAClave::ChkNumBits_Click);
    conecta(ui->TxtNumBits, &QLineEdit::textChanged, this, &FormRSAClave::TxtNumBits_Change);
    conecta(ui->cmdBuzon, &QPushButton::clicked, this, &FormRSAClave::cmdBuzon_Click);
    conecta(ui->cmdPublicarClave, &QPushButton::clicked, this,
            &FormRSAClave::cmdPublicarClave_Click);
    muestraObjecion();
}

FormRSAClave::~FormRSAClave() = default;

CampoLargo *FormRSAClave::txtQ(int i) const
{
    return std::array{ui->txtQ_0, ui->txtQ_1, ui->txtQ_2}[static_cast<std::size_t>(i)];
}

void FormRSAClave::muestraClave()
{
    for (const int i : {1, 2})
        txtQ(i)->setText(m_clave->q(i));
    ui->txtS->setText(m_clave->s());
    muestraCalculados();
    // The key that was recovered may have another block length than the field begins with.
    const QSignalBlocker callado(ui->txtR);
    ui->txtR->setText(QString::number(m_clave->r()));
    actualizaPasos();
}

/// Whether what stands in the fields is the key, and valid.
bool FormRSAClave::muestraLaClave() const
{
    return m_clave->ClaveOK() && txtQ(1)->text() == m_clave->q(1) &&
           txtQ(2)->text() == m_clave->q(2) && ui->txtS->text() == m_clave->s();
}

/// The steps of the key in the fields, unless they are there already; an attack that was shown goes
/// with the key that stood there then.
void FormRSAClave::actualizaPasos()
{
    const bool valida = muestraLaClave();
    const QStringList numeros = valida ? QStringList{m_clave->q(1), m_clave->q(2), m_clave->s(),
                                                     m_clave->t(), QString::number(m_clave->r())}
                                       : QStringList();
    if (numeros == m_explicada)
        return;
    m_explicada = numeros;
    m_ataques->abandona();
    m_pasos->pon(valida ? pasosDeClave(enCifras(*m_clave)) : Pasos());
}

void FormRSAClave::muestraCalculados()
{
    txtQ(0)->setText(m_clave->q(0));
    ui->txtFiQ->setText(m_clave->FiQ());
    ui->txtT->setText(m_clave->t());
    const QString bits = m_clave->nbits() > 0 ? QString::number(m_clave->nbits()) : QString();
    ui->LabelNumBits->setText(Traduce(u"Nº de bits de la clave ="_s) + u' ' + bits);
}

void FormRSAClave::ponEstado(Estado estado, const QString &texto)
{
    m_publicada = false;
    m_estado = estado;
    m_textoDeEstado = abreviaNumeros(texto);
    muestraEstado();
}

void FormRSAClave::muestraEstado()
{
    if (m_estado != Estado::Neutro) {
        ::muestraVeredicto(ui->lblEstado, m_estado == Estado::Bien, m_textoDeEstado);
        return;
    }
    muestraNeutro(ui->lblEstado, m_textoDeEstado);
}

void FormRSAClave::muestraVeredicto(bool bien, const QString &mensaje)
{
    ponEstado(bien ? Estado::Bien : Estado::Mal, mensaje);
    if (bien) {
        ui->lblFichero->show();
        ui->lblFichero->setText(Traduce(u"Su clave privada se guarda en %1"_s)
                                    .arg(rutaDePlataforma(m_clave->FicheroClavePrivada())));
    }
}

/// At each key: the computed numbers belong to the others, and so does what is said of them.
void FormRSAClave::muestraEscrita()
{
    muestraDerivados();
    muestraObjecion();
}

/// A number that was computed from others than those in the fields is not shown.
void FormRSAClave::muestraDerivados()
{
    const bool mismosPrimos = txtQ(1)->text() == m_clave->q(1) && txtQ(2)->text() == m_clave->q(2);
    actualizaPasos();
    if (muestraLaClave()) {
        muestraCalculados();
        return;
    }
    const auto conserva = [mismosPrimos](CampoLargo *campo, const QString &valor) {
        if (!mismosPrimos || campo->text() != valor)
            campo->setText({});
    };
    conserva(txtQ(0), m_clave->q(0));
    conserva(ui->txtFiQ, m_clave->FiQ());
    ui->txtT->setText({});
    if (txtQ(0)->text().isEmpty())
        ui->LabelNumBits->setText(Traduce(u"Nº de bits de la clave ="_s));
}

/// Says at each key what a validation would object to, before it is asked for.
void FormRSAClave::muestraObjecion()
{
    ClsRSA escrita(m_clave->sesion());
    const double r = NumVal(ui->txtR->text());
    escrita.ponr(m_rPendiente && r <= MayorR ? aEntero16(r) : m_clave->r());
    escrita.ponNBitsRequeridos(m_clave->NBitsRequeridos());
    escrita.ponq(1, ui->txtQ_1->text());
    escrita.ponq(2, ui->txtQ_2->text());
    escrita.pons(ui->txtS->text());
    const QString objecion = esLarga() ? QString() : escrita.Objecion();
    if (!objecion.isEmpty()) {
        ponEstado(Estado::Mal, objecion);
        return;
    }
    const bool completa =
        !escrita.q(1).isEmpty() && !escrita.q(2).isEmpty() && !escrita.s().isEmpty();
    ponEstado(Estado::Neutro,
              completa
                  ? Traduce(u"Pulse Intro para comprobar y guardar la clave."_s)
                  : Traduce(u"Escriba dos primos, q(1) y q(2), y un número s primo con φ(q)."_s));
}

void FormRSAClave::avisaDeEspera()
{
    ponEstado(Estado::Neutro,
              Traduce(u"Comprobando los primos. Con miles de cifras lleva unos segundos."_s));
    repaint();
}

bool FormRSAClave::esLarga() const
{
    return std::max(
               {ui->txtQ_1->text().size(), ui->txtQ_2->text().size(), ui->txtS->text().size()}) >
           (Aparte::responde() ? CifrasAlVueloAparte : CifrasAlVuelo);
}

/// Tests the primes of the key where the window answers meanwhile; the validation then knows of
/// them. Where that cannot be done, it tests them itself.
Tarea<> FormRSAClave::pruebaAparte(Billete billete)
{
    if (!Aparte::responde())
        co_return;
    const QStringList numeros = m_clave->porProbar();
    try {
        for (const QString &numero : numeros) {
            const bool primo = co_await Aparte::esPrimo(numero, billete);
            if (billete.detenida())
                co_return;
            m_clave->sabe(numero, primo);
        }
    } catch (const ErrorEjecucion &error) {
        qWarning("%s", qPrintable(error.texto()));
    }
}

Tarea<> FormRSAClave::valida()
{
    if (esLarga()) {
        setCursor(Qt::WaitCursor);
        avisaDeEspera();
    }
    // Of the numbers that stood there before nobody wants to know any more.
    m_tareas.detener();
    const Billete billete = m_tareas.billete();
    co_await pruebaAparte(billete);
    if (billete.detenida())
        co_return;
    const auto alFinal = qScopeGuard([this] {
        unsetCursor();
        muestraDerivados();
        Q_EMIT validada();
    });
    if (std::exchange(m_rPendiente, false))
        m_clave->ponr(aEntero16(NumVal(ui->txtR->text())));
    m_clave->Valida();
}

void FormRSAClave::txtQ_Return(int i)
{
    m_clave->ponq(i, txtQ(i)->text());
    ui->txtFiQ->setText({});
    ui->txtT->setText({});
    m_tareas.lanza(valida());
}

void FormRSAClave::txtQ_Validate(int i)
{
    // The Enter key may have done it already.
    if (txtQ(i)->text() != m_clave->q(i))
        txtQ_Return(i);
}

void FormRSAClave::txtS_Return()
{
    m_clave->pons(ui->txtS->text());
    m_tareas.lanza(valida());
}

void FormRSAClave::txtS_Validate()
{
    if (ui->txtS->text() != m_clave->s())
        txtS_Return();
}

void FormRSAClave::txtR_Change()
{
    // A valid key is saved: what a page fills in is taken over with the numbers, by the student.
    m_rPendiente = seRellena(ui->txtR);
    if (m_rPendiente)
        return muestraObjecion();
    m_clave->ponr(aEntero16(NumVal(ui->txtR->text())));
    muestraObjecion();
    m_tareas.lanza(valida());
}

void FormRSAClave::ChkNumBits_Click()
{
    const bool exige = ui->ChkNumBits->isChecked();
    // First of all, because a number that is too large can only be changed in the field.
    ui->TxtNumBits->setEnabled(exige);
    m_clave->ponNBitsRequeridos(exige ? aEntero16(NumVal(ui->TxtNumBits->text()))
                                      : std::int16_t{0});
    muestraObjecion();
}

void FormRSAClave::TxtNumBits_Change()
{
    if (!ui->ChkNumBits->isChecked())
        return;
    m_clave->ponNBitsRequeridos(aEntero16(NumVal(ui->TxtNumBits->text())));
    muestraObjecion();
}

Tarea<> FormRSAClave::cmdBuzon_Click()
{
    const QString pregunta =
        Traduce(u"Seleccione la carpeta compartida donde enviar y recibir los mensajes."_s) +
        u'\n' + Traduce(u"(Cancelar puede eliminar toda la información)"_s);
    const QString actual = m_clave->DirMensajes();
    const QString carpeta = co_await interlocutor().eligeCarpeta(this, pregunta, actual);
    m_clave->ponDirMensajes(carpeta);
}

void FormRSAClave::cmdPublicarClave_Click()
{
    if (m_clave->DirMensajes().isEmpty())
        return;
    m_clave->PublicaClave();
    ponEstado(Estado::Bien, Traduce(u"Clave publicada en el buzón: ya le pueden escribir."_s));
    m_publicada = true;
}

void FormRSAClave::muestraBuzon(bool sePuedePublicar)
{
    const QString carpeta = m_clave->DirMensajes();
    const QString texto = carpeta.isEmpty()        ? Traduce(u"Todavía no ha elegido un buzón."_s)
                          : ExisteFichero(carpeta) ? Traduce(u"Buzón: %1"_s)
                                                   : Traduce(u"No se encuentra el buzón: %1"_s);
    ui->lblBuzon->setText(carpeta.isEmpty() ? texto : texto.arg(QDir::toNativeSeparators(carpeta)));
    ui->cmdPublicarClave->setEnabled(sePuedePublicar);
    // It was published in the mailbox that was there before.
    if (m_publicada && m_clave->ClaveOK())
        muestraVeredicto(true, Traduce(u"Clave OK"_s));
}
