#pragma once

#include "lessons/rsa/ColMensajes.h"
#include "lessons/rsa/TablaDeTextos.h"

#include <QWidget>
#include <memory>

class FormClaveRSA;
class FormLeccion;
class QAbstractButton;

namespace Ui {
class FormRSAMensajes;
}

/// The topic "Enviar y recibir": the messages of the mailbox, the key of the chosen correspondent,
/// and the message that is read or written.
class FormRSAMensajes : public QWidget
{
    Q_OBJECT

public:
    /// `clave` is the student's own key.
    FormRSAMensajes(ClsRSA &clave, FormLeccion *leccion);
    ~FormRSAMensajes() override;

    /// Scans the mailbox as soon as the event queue runs.
    void revisaPronto();

    /// The button of the run in progress, if it was started here.
    QAbstractButton *botonDeParada() const { return m_parada; }

Q_SIGNALS:
    /// The mailbox could not be read.
    void buzonPerdido();

protected:
    void showEvent(QShowEvent *suceso) override;
    void hideEvent(QHideEvent *suceso) override;

private:
    void eligeDestinatario(const QString &usuario);
    void devuelveClavePropia();
    template <typename Accion>
    void corre(QAbstractButton *boton, const QString &consejo, Accion accion);
    void revisa();
    void muestraLista(const QString &estado);
    QString claveDeFila(int fila) const;
    void envia();
    void recibe();
    bool esRepetido(const QString &destinatario, const QString &asunto);
    bool puedeViajar(const QString &texto);
    void escuchaErrores(clsMensaje &mensaje);
    void habilita();

    void FlexMensajes_Click(int fila);
    void cmbDestinatario_Validate();
    void txtDestTextoOriginal_Change();
    void enviar_Click();
    void recibir_Click();
    void revisar_Click();

    std::unique_ptr<Ui::FormRSAMensajes> ui;
    ClsRSA &m_clave;
    ClsRSA m_claveAjena; ///< the correspondent's
    ColMensajes m_mensajes;
    TablaDeTextos m_tabla;
    FormLeccion *m_leccion;
    FormClaveRSA *m_ventanaClave;
    QString m_destinatario;
    int m_filaMostrada = -1;
    bool m_clavePropiaPisada = false; ///< the private key file holds the correspondent's numbers
    QAbstractButton *m_parada = nullptr;
};
