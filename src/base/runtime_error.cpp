#include "base/runtime_error.h"

namespace base {

std::string RuntimeErrorDescription(RuntimeErrorNumber number) {
    switch (number) {
    case RuntimeErrorNumber::Overflow: return "オーバーフローしました。";
    case RuntimeErrorNumber::SubscriptOutOfRange: return "インデックスが有効範囲にありません。";
    case RuntimeErrorNumber::DivisionByZero: return "0 で除算しました。";
    case RuntimeErrorNumber::TypeMismatch: return "型が一致しません。";
    case RuntimeErrorNumber::PathFileAccess: return "パス名が無効です。";
    }
    return "アプリケーション定義またはオブジェクト定義のエラーです。";
}

RuntimeError::RuntimeError(RuntimeErrorNumber number)
    : std::runtime_error(RuntimeErrorDescription(number)), m_number(number) {}

std::string RuntimeErrorBoxText(RuntimeErrorNumber number) {
    return "実行時エラー '" + std::to_string(static_cast<int>(number)) + "':\r\n\r\n" +
           RuntimeErrorDescription(number);
}

}  // namespace base
