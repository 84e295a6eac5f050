#include "comun/MensajesEstrictos.h"

#include "paneles/dialogos/Mensaje.h"

#include <QByteArray>
#include <QTest>

namespace {

void fallar(const MensajeSeam::Registro& mensaje)
{
    const QByteArray aviso = QByteArrayLiteral("Mensaje sin respuesta preparada (")
        + QByteArray::number(mensaje.botones) + QByteArrayLiteral("): ")
        + mensaje.texto.toUtf8();
    QTest::qFail(aviso.constData(), __FILE__, __LINE__);
}

}  // namespace

MensajesEstrictos::MensajesEstrictos()
{
    MensajeSeam::estricto(&fallar);
}

MensajesEstrictos::~MensajesEstrictos()
{
    MensajeSeam::estricto(nullptr);
}
