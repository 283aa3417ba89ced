#include "text/failure.h"

namespace failures {

Failure overflow() { return {kOverflow, "Desbordamiento"}; }
Failure subscript() { return {kSubscript, "El subíndice está fuera del intervalo"}; }
Failure typeMismatch() { return {kTypeMismatch, "No coinciden los tipos"}; }
Failure fileNotFound() { return {kFileNotFound, "No se ha encontrado el archivo"}; }
Failure pathAccess() { return {kPathAccess, "Error de acceso a la ruta o al archivo"}; }
Failure noObject() {
  return {kNoObject, "La variable de tipo Object o la variable de bloque With no está establecida"};
}
Failure invalidPropertyValue() { return {kInvalidPropertyValue, "El valor de la propiedad no es válido"}; }
Failure readOnlyText() { return {kReadOnlyText, "La propiedad Text es de sólo lectura"}; }
Failure cannotCreateObject() { return {kCannotCreateObject, "El componente ActiveX no puede crear el objeto"}; }
Failure noSuchMember(const std::string& member) {
  return {kNoSuchMember, "El objeto no admite esta propiedad o método: " + member};
}
Failure engineRejected(const std::string& why) { return {kEngineRejected, why}; }

}  // namespace failures
