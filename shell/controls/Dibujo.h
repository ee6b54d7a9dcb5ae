// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

/// Shows one of the program's pictures by its resource name, as large as there is room.
class Dibujo : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString imagen READ imagen WRITE setImagen)

public:
    explicit Dibujo(QWidget *padre = nullptr);

    const QString &imagen() const { return m_imagen; }
    void setImagen(const QString &nombre);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *suceso) override;

private:
    QString m_imagen;
};
