#include "desktop/webview/ScriptObject.h"

#include <algorithm>
#include <cmath>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "desktop/QtText.h"

extern "C" {
extern const unsigned char wrenvale_script_object[];
extern const unsigned long wrenvale_script_object_size;
}

namespace wrenvale::platform {

namespace {

constexpr int kLongestPiece = 10'000;          // the engine cuts prompts off at 10,240
constexpr qsizetype kLongestCall = 64'000'000; // characters
constexpr double kIntegersEnd = 9.223372036854775808e18;

QString compact(const QJsonArray& array) {
  return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

Value numberFrom(const QJsonValue& json) {
  const double number = json.toDouble();
  const bool whole =
      number == std::trunc(number) && number >= -kIntegersEnd && number < kIntegersEnd;
  return whole ? Value(static_cast<std::int64_t>(json.toInteger(static_cast<qint64>(number))))
               : Value(number);
}

Value valueFrom(const QJsonValue& json) {
  if (json.isBool()) return json.toBool();
  if (json.isDouble()) return numberFrom(json);
  if (json.isString()) return json.toString().toStdString();
  return {};
}

QJsonValue jsonFrom(const Value& value) {
  if (const auto* boolean = value.boolean()) return *boolean;
  if (const auto* integer = value.integer()) return static_cast<qint64>(*integer);
  if (const auto* text = value.string()) return fromUTF8(*text);
  return QJsonValue::Null;
}

} // namespace

QString ScriptObject::source() const {
  return fromUTF8(wrenvale_script_object, wrenvale_script_object_size).trimmed() + "(\"" + secret_ +
         "\");";
}

void ScriptObject::clear() {
  token_.clear();
  pieces_.clear();
}

void ScriptObject::publish(std::string_view name, const std::vector<ScriptMethod>& methods) {
  token_ = makeSecret();
  name_ = fromUTF8(name);
  methods_ = methods;
}

QString ScriptObject::introduction() const {
  QJsonArray methods;
  for (const auto& method : methods_)
    methods.append(QJsonObject{{"name", fromUTF8(method.name)}, {"arguments", method.arguments}});
  const QJsonObject introduction{
      {"token", token_}, {"name", name_}, {"methods", methods}, {"longest", kLongestPiece}};
  return QString::fromUtf8(QJsonDocument(introduction).toJson(QJsonDocument::Compact));
}

bool ScriptObject::isCall(const QString& message) const {
  return isPublished() && message.size() > token_.size() && message.startsWith(token_);
}

std::optional<ScriptObject::Call> ScriptObject::call(const QString& message) {
  const auto text =
      assembled(message.at(token_.size()), QStringView(message).mid(token_.size() + 1));
  if (!text) return std::nullopt;
  const auto words = QJsonDocument::fromJson(text->toUtf8()).array();
  Call call{.name = words.at(0).toString().toStdString(), .arguments = {}};
  const auto method = std::find_if(methods_.begin(), methods_.end(),
                                   [&](const auto& each) { return each.name == call.name; });
  if (method == methods_.end()) return std::nullopt;
  for (int i = 1; i <= method->arguments; ++i)
    call.arguments.push_back(valueFrom(words.at(i)));
  return call;
}

// A script may break off in the middle of a call, so each first piece drops the pieces before it.
std::optional<QString> ScriptObject::assembled(QChar kind, QStringView piece) {
  if (kind == 'w' || kind == 'b') pieces_.clear();
  if (kind == 'w') return piece.toString();
  if (kind != 'b' && pieces_.isEmpty()) return std::nullopt;
  if (pieces_.size() + piece.size() > kLongestCall) {
    pieces_.clear();
    return std::nullopt;
  }
  pieces_ += piece;
  return kind == 'e' ? std::optional(std::exchange(pieces_, {})) : std::nullopt;
}

QString ScriptObject::encoded(const Value& result) {
  return compact({jsonFrom(result)});
}

QString scriptCalling(std::string_view function, const std::vector<Value>& arguments) {
  QString list;
  for (const auto& argument : arguments)
    list += (list.isEmpty() ? "" : ",") + compact({jsonFrom(argument)}).mid(1).chopped(1);
  return QString("(function (f) { if (typeof f === \"function\") f(%2); })(window[%1]);")
      .arg(compact({fromUTF8(function)}).mid(1).chopped(1), list);
}

} // namespace wrenvale::platform
