// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Veredicto.h"

#include "shell/access/Anuncio.h"
#include "shell/look/Aspecto.h"

#include <QEvent>
#include <QLabel>
#include <QMetaObject>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keeps a verdict in the colour of the theme in which it is read, not of that in which it was
/// given.
class TintaDeVeredicto : public QObject
{
public:
    static TintaDeVeredicto &de(QLabel *rotulo)
    {
        const QString nombre = u"TintaDeVeredicto"_s;
        auto *tinta = rotulo->findChild<QObject *>(nombre, Qt::FindDirectChildrenOnly);
        if (!tinta) {
            tinta = new TintaDeVeredicto(rotulo);
            tinta->setObjectName(nombre);
        }
        return *static_cast<TintaDeVeredicto *>(tinta);
    }

    enum Tinta { Neutra, Bien, Mal };

    void pon(Tinta tinta)
    {
        m_tinta = tinta;
        QPalette colores;
        if (tinta != Neutra)
            colores.setColor(QPalette::WindowText,
                             tinta == Bien ? Aspecto::exito() : Aspecto::error());
        m_rotulo->setPalette(colores);
    }

    bool eventFilter(QObject *objeto, QEvent *suceso) override
    {
        if (suceso->type() == QEvent::ApplicationPaletteChange)
            pon(m_tinta);
        return QObject::eventFilter(objeto, suceso);
    }

private:
    explicit TintaDeVeredicto(QLabel *rotulo) : QObject(rotulo), m_rotulo(rotulo)
    {
        rotulo->installEventFilter(this);
    }

    QLabel *m_rotulo;
    Tinta m_tinta = Neutra;
};

} // namespace

void muestraVeredicto(QLabel *rotulo, bool bien, const QString &texto)
{
    TintaDeVeredicto::de(rotulo).pon(bien ? TintaDeVeredicto::Bien : TintaDeVeredicto::Mal);
    rotulo->setText((bien ? u"✓ "_s : u"✗ "_s) + texto);
    anuncia(rotulo);
}

void muestraNeutro(QLabel *rotulo, const QString &texto)
{
    TintaDeVeredicto::de(rotulo).pon(TintaDeVeredicto::Neutra);
    rotulo->setText(texto);
    anuncia(rotulo);
}

void rechaza(QWidget *campo, QLabel *rotulo, const QString &motivo)
{
    muestraVeredicto(rotulo, false, motivo);
    campo->setFocus();
    QMetaObject::invokeMethod(campo, "selectAll");
}
