#include "lessons/rsa/windows/FormRSAMensajes.h"

#include "lessons/rsa/mailbox/Buzon.h"
#include "lessons/rsa/windows/FormClaveRSA.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormRSAMensajes.h"

#include <QHeaderView>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<Ui::FormRSAMensajes> montada(QWidget *panel)
{
    auto ui = std::make_unique<Ui::FormRSAMensajes>();
    ui->setupUi(panel);
    return ui;
}

} // namespace

FormRSAMensajes::FormRSAMensajes(ClsRSA &clave, FormLeccion *leccion)
    : QWidget(leccion),
      ui(montada(this)),
      m_clave(clave),
      m_corresponsal(clave),
      m_tabla(Traduce(u"<Dirigido a     |<De           |<Asunto"_s)),
      m_leccion(leccion),
      m_mandos(leccion->corrida(), [this] { habilita(); }),
      m_ventanaClave(new FormClaveRSA(this)),
      m_redaccion(ui->txtAsunto, ui->txtDestTextoOriginal, clave.sesion().carpetaDeAjustes(), this)
{
    traduceVentana(this);
    ui->enviar->setIcon(Icono(u"ENVIAR"_s));
    ui->recibir->setIcon(Icono(u"RECIBIR"_s));
    ui->revisar->setIcon(Icono(u"REVISAR"_s));
    Aspecto::destaca(ui->LabelTexto);
    ui->FlexMensajes->setModel(&m_tabla);
    ui->FlexMensajes->setSelectionMode(QAbstractItemView::SingleSelection);
    ui->FlexMensajes->ponTextoVacio(Traduce(u"No hay mensajes en el buzón"_s));
    ui->FlexMensajes->horizontalHeader()->setStretchLastSection(true);
    ui->cmbDestinatario->setCurrentText({});
    // The field within has the focus, and screen readers tell its name.
    ui->cmbDestinatario->lineEdit()->setAccessibleName(ui->cmbDestinatario->accessibleName());
    m_timerRevision.setSingleShot(true);
    ui->enviar->installEventFilter(this);

    conecta(ui->FlexMensajes, &QTableView::clicked, this,
            [this](const QModelIndex &celda) { FlexMensajes_Click(celda.row()); });
    // Keys that lead to a row select it. The focus, on arriving, only makes one current.
    conecta(ui->FlexMensajes->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { FlexMensajes_Click(filaElegida()); });
    conecta(ui->FlexMensajes, &QTableView::activated, this, [this](const QModelIndex &celda) {
        ui->FlexMensajes->selectRow(celda.row());
        ui->recibir->click();
    });
    conecta(ui->txtAsunto, &QLineEdit::returnPressed, this,
            [this] { ui->txtDestTextoOriginal->setFocus(); });
    conecta(ui->cmbDestinatario, &QComboBox::activated, this, [this] { cmbDestinatario_Click(); });
    conecta(ui->cmbDestinatario->lineEdit(), &QLineEdit::returnPressed, this,
            &FormRSAMensajes::cmbDestinatario_Click);
    conecta(ui->cmbDestinatario->lineEdit(), &QLineEdit::editingFinished, this,
            &FormRSAMensajes::cmbDestinatario_Validate);
    conecta(&m_redaccion, &FormRSARedaccion::cambiada, this, &FormRSAMensajes::habilita);
    conecta(&m_redaccion, &FormRSARedaccion::avisa, ui->lblEstadoBuzon, &QLabel::setText);
    conecta(&m_timerRevision, &QTimer::timeout, this, &FormRSAMensajes::TimerRevision_Timer);
    conecta(m_ventanaClave, &FormClaveRSA::puedeRecibir, this, [this] { habilita(); });
    conecta(ui->enviar, &QToolButton::clicked, this, &FormRSAMensajes::enviar_Click);
    conecta(ui->recibir, &QToolButton::clicked, this, &FormRSAMensajes::recibir_Click);
    conecta(ui->revisar, &QToolButton::clicked, this, &FormRSAMensajes::revisar_Click);
    evento(this, [this] { m_redaccion.recupera(); });
}

FormRSAMensajes::~FormRSAMensajes()
{
    try {
        m_corresponsal.devuelveClavePropia();
    } catch (const ErrorEjecucion &) {
        // The window is gone; there is nobody left to tell.
    }
}

void FormRSAMensajes::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    if (m_corresponsal.usuario().isEmpty())
        return;
    m_ventanaClave->muestra();
    evento(this, [this] { actualizaDestinatario(); });
}

void FormRSAMensajes::hideEvent(QHideEvent *suceso)
{
    QWidget::hideEvent(suceso);
    m_ventanaClave->hide();
    // Before the topic is left, so that no way of going on loses the own key.
    evento(this, [this] { m_corresponsal.devuelveClavePropia(); });
}

bool FormRSAMensajes::eventFilter(QObject *objeto, QEvent *suceso)
{
    // The second click of a double click would send the message again: it is no repeated one before
    // the next scan.
    return (objeto == ui->enviar && suceso->type() == QEvent::MouseButtonDblClick) ||
           QWidget::eventFilter(objeto, suceso);
}

void FormRSAMensajes::habilita()
{
    const bool hayTexto = !m_redaccion.texto().trimmed().isEmpty();
    const bool puedeEnviar = !m_corresponsal.usuario().isEmpty() && hayTexto;
    const bool puedeRecibir = !m_ventanaClave->t().trimmed().isEmpty();
    const QAbstractButton *parada = m_mandos.botonDeParada();
    ui->enviar->setEnabled(m_mandos.atiende(ui->enviar) && (puedeEnviar || parada));
    ui->recibir->setEnabled(m_mandos.atiende(ui->recibir) && (puedeRecibir || parada));
    ui->revisar->setEnabled(m_mandos.atiende(ui->revisar));
}

void FormRSAMensajes::eligeDestinatario(const QString &usuario)
{
    ui->LabelTexto->setText(Traduce(u"Mensaje para "_s) + usuario);
    const auto alFinal = qScopeGuard([this] {
        habilita();
        m_ventanaClave->ponCorresponsal(m_corresponsal.usuario(), m_corresponsal.clave());
        if (isVisible())
            m_ventanaClave->muestra();
    });
    m_corresponsal.elige(usuario);
}

/// The correspondent may have published a key, or another one, since being chosen.
void FormRSAMensajes::actualizaDestinatario()
{
    if (m_corresponsal.haCambiado())
        eligeDestinatario(m_corresponsal.usuario());
}

void FormRSAMensajes::olvidaDestinatario()
{
    m_corresponsal.olvida();
    ui->LabelTexto->setText(Traduce(u"Mensaje"_s));
    m_ventanaClave->hide();
    habilita();
}

void FormRSAMensajes::FlexMensajes_Click(int fila)
{
    if (fila < 0)
        return;
    if (fila == m_filaMostrada && m_tabla.filas()[fila][0] == m_corresponsal.usuario()) {
        actualizaDestinatario();
        return;
    }
    const clsMensaje *mensaje = m_mensajes.Item(claveDeFila(fila));
    if (!mensaje)
        return;
    m_filaMostrada = fila;
    ui->cmbDestinatario->setCurrentText(mensaje->Destinatario());
    muestraMensaje(*mensaje);
    eligeDestinatario(mensaje->Destinatario());
}

void FormRSAMensajes::muestraMensaje(const clsMensaje &mensaje)
{
    m_redaccion.muestraMensaje(mensaje.Destinatario(), mensaje.Asunto(), mensaje.TextoOriginal());
}

void FormRSAMensajes::cmbDestinatario_Click()
{
    nombra(ui->cmbDestinatario->currentText().trimmed());
}

void FormRSAMensajes::cmbDestinatario_Validate()
{
    // A field that is merely left chooses nobody anew.
    const QString usuario = ui->cmbDestinatario->currentText().trimmed();
    if (usuario != m_corresponsal.usuario())
        nombra(usuario);
}

void FormRSAMensajes::nombra(const QString &usuario)
{
    const bool esOtro = usuario != m_corresponsal.usuario();
    if (m_redaccion.dirige(usuario) || esOtro)
        m_filaMostrada = -1;
    if (usuario.isEmpty())
        olvidaDestinatario();
    else if (esOtro)
        eligeDestinatario(usuario);
    else
        actualizaDestinatario();
}

/// The row of the list that is selected; -1 when none is.
int FormRSAMensajes::filaElegida() const
{
    const QModelIndexList filas = ui->FlexMensajes->selectionModel()->selectedRows();
    return filas.isEmpty() ? -1 : filas.constFirst().row();
}

QString FormRSAMensajes::claveDeFila(int fila) const
{
    const QStringList &textos = m_tabla.filas()[fila];
    return ColMensajes::clave(textos[1], textos[0], textos[2]);
}

void FormRSAMensajes::revisaPronto()
{
    using namespace std::chrono_literals;
    m_timerRevision.start(m_leccion->corrida().enCurso() ? 100ms : 0ms);
}

void FormRSAMensajes::TimerRevision_Timer()
{
    if (m_leccion->corrida().enCurso())
        revisaPronto();
    else if (ExisteFichero(m_clave.DirMensajes()))
        revisa();
    else
        vaciaLista();
}

void FormRSAMensajes::revisar_Click()
{
    m_mandos.pulsa(ui->revisar, [this] { revisa(); });
}

void FormRSAMensajes::revisa()
{
    m_mandos.corre(ui->revisar, Traduce(u"Detener la revisión"_s), [this] {
        try {
            const QString buzon = m_clave.DirMensajes();
            const int ilegibles = revisaBuzon(buzon, m_mensajes, m_leccion->corrida());
            muestraUsuarios(usuariosDelBuzon(buzon));
            muestraLista(estadoDeRevision(ilegibles));
        } catch (const ErrorEjecucion &) {
            vaciaLista();
            Q_EMIT buzonPerdido();
            throw;
        }
    });
    actualizaDestinatario();
}

void FormRSAMensajes::vaciaLista()
{
    m_mensajes = ColMensajes();
    muestraUsuarios({});
    muestraLista({});
}

QString FormRSAMensajes::estadoDeRevision(int ilegibles)
{
    QString estado = Traduce(u"Mensajes: %1"_s).arg(formatoEntero(m_mensajes.Count()));
    if (m_leccion->corrida().detenida())
        estado.prepend(Traduce(u"Revisión detenida"_s) + u". "_s);
    if (ilegibles > 0)
        estado += u". "_s + Traduce(u"No se han podido leer: %1"_s).arg(ilegibles);
    if (const QStringList nombres = m_redaccion.pendientes(); !nombres.isEmpty())
        estado += u". "_s + Traduce(u"Borradores para: %1"_s).arg(nombres.join(u", "_s));
    return estado;
}

void FormRSAMensajes::muestraLista(const QString &estado)
{
    const QString mostrada = m_filaMostrada >= 0 ? claveDeFila(m_filaMostrada) : QString();
    QList<QStringList> filas;
    filas.reserve(m_mensajes.Count());
    int filaMostrada = -1;
    for (const auto &mensaje : m_mensajes) {
        filas << QStringList{mensaje->Destinatario(), mensaje->Remitente(), mensaje->Asunto()};
        const auto suya = ColMensajes::clave(filas.last()[1], filas.last()[0], filas.last()[2]);
        if (!mostrada.isEmpty() && suya == mostrada)
            filaMostrada = static_cast<int>(filas.size()) - 1;
    }
    m_tabla.ponFilas(filas);
    // A list made anew takes nothing away from what is being written.
    m_filaMostrada = filaMostrada;
    if (filaMostrada >= 0)
        ui->FlexMensajes->selectRow(filaMostrada);
    ui->lblEstadoBuzon->setText(estado);
}

/// Offers the users as recipients; what is written in the field stays.
void FormRSAMensajes::muestraUsuarios(const QStringList &usuarios)
{
    const QString escrito = ui->cmbDestinatario->currentText();
    ui->cmbDestinatario->clear();
    ui->cmbDestinatario->addItems(usuarios);
    for (const QString &nombre : m_redaccion.pendientes()) {
        if (!usuarios.contains(nombre, Qt::CaseInsensitive))
            ui->cmbDestinatario->addItem(nombre);
    }
    ui->cmbDestinatario->setCurrentText(escrito);
}

bool FormRSAMensajes::esRepetido(const QString &destinatario, const QString &asunto)
{
    const QString remitente = Sesión().UserName();
    if (!m_mensajes.Item(ColMensajes::clave(remitente, destinatario, asunto)))
        return false;
    interlocutor().mensaje(this, Interlocutor::Icono::Critico,
                           Traduce(u"Ya hay un mensaje de "_s) + remitente + Traduce(u" para "_s) +
                               destinatario + Traduce(u" con asunto '"_s) + asunto + u'\'',
                           Traduce(u"Mensaje repetido"_s));
    return true;
}

/// Text and subject may both be unfit; one box tells it.
void FormRSAMensajes::escuchaErrores(clsMensaje &mensaje)
{
    connect(
        &mensaje, &clsMensaje::ErrorMensaje, this,
        [this](const QString &motivo) {
            interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion, motivo,
                                   Traduce(u"Error en el mensaje"_s));
        },
        Qt::SingleShotConnection);
}

void FormRSAMensajes::enviar_Click()
{
    m_mandos.pulsa(ui->enviar, [this] { envia(); });
}

void FormRSAMensajes::envia()
{
    const QString texto = m_redaccion.texto();
    const QString asunto = m_redaccion.asunto();
    const QString destinatario = m_corresponsal.usuario();
    if (esRepetido(destinatario, asunto) || !seCodifica(this, texto) || !seCodifica(this, asunto))
        return;
    actualizaDestinatario();
    const QString pregunta =
        Traduce(u"No hay una clave pública de %1 que sirva: nadie podrá leer el mensaje. ¿Enviarlo "
                u"así?"_s);
    if (!m_corresponsal.claveSirve() &&
        !interlocutor().confirma(this, pregunta.arg(destinatario),
                                 Traduce(u"Falta la clave pública"_s)))
        return;
    m_mandos.corre(ui->enviar, Traduce(u"Detener el envío"_s), [&] {
        clsMensaje mensaje;
        escuchaErrores(mensaje);
        mensaje.ponMensajeOK(true);
        mensaje.ponClave(&m_corresponsal.clave());
        mensaje.ponDestinatario(destinatario);
        mensaje.ponRemitente(Sesión().UserName());
        mensaje.ponTextoOriginal(texto);
        mensaje.ponAsunto(asunto);
        mensaje.CodificaTexto(m_leccion->corrida());
        if (m_leccion->corrida().detenida())
            return;
        mensaje.Envia();
        if (mensaje.MensajeOK())
            m_redaccion.enviado(asunto, texto);
        const QString fichero = mensaje.NombreFichero().section(u'\\', -1);
        ui->lblEstadoBuzon->setText(Traduce(mensaje.MensajeOK()
                                                ? u"Mensaje enviado a %1 (%2)"_s
                                                : u"El mensaje a %1 ha salido sin texto (%2)"_s)
                                        .arg(mensaje.Destinatario(), fichero));
    });
}

void FormRSAMensajes::recibir_Click()
{
    m_mandos.pulsa(ui->recibir, [this] { recibe(); });
}

void FormRSAMensajes::recibe()
{
    const int fila = filaElegida();
    clsMensaje *mensaje = fila < 0 ? nullptr : m_mensajes.Item(claveDeFila(fila));
    if (!mensaje) {
        interlocutor().mensaje(this, Interlocutor::Icono::Informacion,
                               Traduce(u"Elija primero un mensaje de la lista."_s),
                               Traduce(u"Recibir el mensaje"_s));
        return;
    }
    m_mandos.corre(ui->recibir, Traduce(u"Detener la lectura"_s), [&] {
        m_corresponsal.clave().pont(m_ventanaClave->t());
        mensaje->ponClave(&m_corresponsal.clave());
        mensaje->disconnect(this);
        escuchaErrores(*mensaje);
        mensaje->Recibe(m_leccion->corrida());
        // Another row may have been chosen meanwhile; this text waits in its own.
        if (filaElegida() == fila)
            muestraMensaje(*mensaje);
    });
}
