#pragma once
// The buttons, icon and default button of a message, and the answers, as numbers that add up
// (64 information, 292 a question with Yes/No and No as default, ...). Logic fills them into its verdicts; Mensaje() shows them.
namespace vb {
enum Botones : int {
    OKOnly = 0, OKCancel = 1, AbortRetryIgnore = 2, YesNoCancel = 3, YesNo = 4, RetryCancel = 5,
    Critical = 16, Question = 32, Exclamation = 48, Information = 64,
    DefaultButton1 = 0, DefaultButton2 = 256, DefaultButton3 = 512,
};
enum Respuesta : int { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };
}
