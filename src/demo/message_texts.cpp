#include "message_texts.h"

namespace orl::demo {

// clang-format off

const std::vector<ServiceName> &serviceNames()
{
    static const std::vector<ServiceName> names{
        {"Pingellus", true}, {"Kumoboxo", true}, {"Voltarine", true}, {"Fjordpenny", true}, {"Zepharion", true},
        {"Quillomat", true}, {"Mokkarino", true}, {"Lumentide", true}, {"Brixandria", true}, {"Otterlane", true},
        {"Skylarko", true}, {"Wanderlisk", true}, {"Snackarello", true}, {"Gridwick", true},
        {"Nimbaro"}, {"Tavolinka"}, {"Chirpano"}, {"Drivanelle"}, {"Petalunia"}, {"Cobaltine"}, {"Yonderoo"},
        {"Zuppario"}, {"Vexillan"}, {"Paprikolo"}, {"Harbourly Pay"}, {"Salt & Pebble"}, {"O'Marrow"},
        {"Café Lumo"}, {"GLIMMERQ"}, {"tinkadoo"}, {"Muralto24"}, {"Bankorra"}, {"NordKvist"}, {"Ölvinger"},
        {"Hexafolk"}, {"Plumequest"}, {"Rivetta"}, {"Dovetailo"}, {"Sundrifter"}, {"Twiglet Chat"}, {"Z"},
    };
    return names;
}

const std::vector<const char *> &genericSenders()
{
    static const std::vector<const char *> senders{
        "Bank", "Info", "SMS", "sms", "Notice", "Verify", "AUTH", "Code", "Alert", "Parcel", "Clinic", "SMS24",
    };
    return senders;
}

const std::vector<LanguageTexts> &languageTexts()
{
    static const std::vector<LanguageTexts> texts{
    {"en",
        {
            "Your {service} code is {code}. Don't share it with anyone.",
            "{code} is your {service} verification code. It expires in {minutes} minutes.",
            "Use {code} to sign in to {service}. If this wasn't you, visit {link}",
            "#> Your {service} login code: {code}\n{alnum}",
            "{service}: {code} is your one-time password for a payment of ${amount}. Never tell it to anybody, not even to our staff & partners.",
            "Welcome to {service} 🎉 Tap {link} to finish setting up your account.",
            "Your {service} access key is {alnum}. It works once.",
            "{name}, your {service} order is on its way 🚚. Track it: {link}",
            "{service} <security>: a new device signed in at {time}. Code: {code}. Not you? {link}",
            "Last chance! 30% off at {service} until midnight. Use \"{alnum}\" at the till. Stop? Reply STOP. T&Cs apply: {link}",
            "PIN: {code}",
            "{service} here 👋 We noticed that you have not finished registering. It only takes two minutes: confirm your number with {code}, choose a picture and invite your friends. As a thank-you we add ${amount} to your balance as soon as the first friend joins. This offer is valid for new customers only, can't be combined with other offers and ends in {minutes} days. All the details, answers to common questions & a way to say \"no thanks\" are at {link}",
            "Your code for {service} is {code}\nValid for {minutes} min",
        },
        {
            "Your parcel {alnum} will be delivered today between {time} and 18:00. Change: {link}",
            "Reminder: your appointment with Dr {name} is tomorrow at {time}. Reply C to cancel.",
            "A/C *{code}: debit of ${amount} at {time}. Balance too low? Call us & we'll help.",
            "hey it's {name}, new number! call me when you get this 😀",
            "Your taxi is arriving in {minutes} min: silver hatchback, plate {alnum}.",
            "Confirmation code {code}",
            "Your table for 4 is booked for {time}. See you soon! ❤️",
            "Low data: you've used 80\u00a0% of your plan. Top up at {link}",
            "Test message: if a < b && b > c then print(\"ok\"); // {code}",
            "<b>Important</b>: read the new terms &amp; conditions at {link}",
            "Water will be shut off in your street from {time} for about {minutes} hours.\u2028Please fill a bucket.",
        },
        {"Clinic", "Parcel", "City Hall", "Taxi", "Bank"},
        {"Maya", "Oliver", "Priya", "Sam", "Grace", "Leo"}},
    {"de",
        {
            "Dein {service}-Code lautet {code}. Gib ihn niemandem weiter.",
            "{code} ist dein Bestätigungscode für {service}. Gültig für {minutes} Minuten.",
            "{service}: Mit der mTAN {code} bestätigen Sie die Überweisung von {amount}\u00a0€ an {name}.",
            "Willkommen bei {service}! Schließe die Anmeldung hier ab: {link}",
            "Neues Gerät bei {service} um {time} Uhr angemeldet. Warst du das nicht? {link}",
            "{service}-Einmalpasswort: {alnum}",
            "Nur heute bei {service}: 20 % auf alles außer Tiernahrung 🐶. Code {alnum}",
        },
        {
            "Ihr Paket {alnum} kommt heute zwischen {time} und 17:00 Uhr. Umleiten: {link}",
            "Erinnerung: Termin bei Frau Dr. {name} morgen um {time} Uhr.",
            "Hallo, hier ist {name}. Könntest du bitte Brötchen & Käse mitbringen?",
            "Straßensperrung wegen Bauarbeiten: Die Buslinie {minutes} fährt bis auf Weiteres nicht über den Marktplatz, die Haltestelle „Schützenstraße“ wird ersatzlos aufgehoben. Fahrgäste nutzen bitte die Ersatzhaltestelle gegenüber der Bücherei. Näheres unter {link}",
            "TAN: {code}",
        },
        {"Sparbank", "Paketdienst", "Bürgeramt", "Praxis"},
        {"Anna", "Jürgen", "Käthe", "Lukas", "Sönke"}},
    {"fr",
        {
            "Votre code {service} est {code}. Ne le communiquez à personne.",
            "{code} : code de vérification {service}, valable {minutes} minutes.",
            "{service} : pour confirmer l'achat de {amount}\u00a0€, saisissez le code {code}.",
            "Bienvenue chez {service}\u00a0! Activez votre compte : {link}",
            "Connexion à {service} à {time}. Si ce n'était pas vous, cliquez ici : {link}",
            "Votre mot de passe à usage unique {service} : {alnum}",
        },
        {
            "Votre colis {alnum} arrive aujourd'hui entre {time} et 18:00. Suivi : {link}",
            "Rappel : rendez-vous chez le Dr {name} demain à {time}.",
            "Coucou c'est {name}, j'ai changé de numéro 😊 bisous",
            "Nous avons bien reçu votre demande n° {code}. Notre équipe l'étudie et vous répondra sous {minutes} jours ouvrés. Vous pouvez à tout moment suivre l'avancement du dossier, déposer une pièce manquante ou poser une question depuis votre espace personnel : {link}. Merci de ne pas répondre à ce message.",
            "Code\u00a0: {code}",
        },
        {"Banque", "Colis", "Mairie", "Pharmacie"},
        {"Chloé", "François", "Zoé", "Léa", "Noël"}},
    {"es",
        {
            "Tu código de {service} es {code}. No lo compartas con nadie.",
            "{code} es tu código de verificación de {service}. Caduca en {minutes} minutos.",
            "{service}: usa la clave {code} para autorizar el pago de {amount}. ¿No fuiste tú? {link}",
            "¡Bienvenido a {service}! Completa tu registro aquí: {link}",
            "Clave de un solo uso de {service}: {alnum}",
            "¡Hoy en {service} todo al 50 %! 🎁 Código {alnum}",
        },
        {
            "Su paquete {alnum} llegará hoy entre las {time} y las 19:00. Seguimiento: {link}",
            "Recordatorio: cita con la Dra. {name} mañana a las {time}.",
            "hola soy {name}, ¿a qué hora es la fiesta? 🎉",
            "Su cuenta presenta un cargo de {amount}. Código de operación {code}.",
            "Código: {code}",
        },
        {"Banco", "Correo", "Aviso", "Clínica"},
        {"Lucía", "Íñigo", "María", "José", "Begoña"}},
    {"pt",
        {
            "Seu código {service} é {code}. Não compartilhe com ninguém.",
            "{code} é o seu código de verificação {service}. Expira em {minutes} minutos.",
            "{service}: compra de R$ {amount} aprovada às {time}. Não reconhece? {link}",
            "Bem-vindo ao {service}! Conclua o cadastro: {link}",
            "Senha de uso único {service}: {alnum}",
        },
        {
            "Sua encomenda {alnum} saiu para entrega e chega até as {time}. Acompanhe: {link}",
            "Lembrete: consulta com a Dra. {name} amanhã às {time}. Responda SIM para confirmar.",
            "Oi, é a {name}! Salva meu número novo aí 😄",
            "Token: {code}",
        },
        {"Banco", "Entrega", "Aviso", "Farmácia"},
        {"João", "Conceição", "Inês", "Luís", "Ana"}},
    {"ru",
        {
            "Ваш код {service}: {code}. Никому его не сообщайте.",
            "{code} — код подтверждения {service}. Действует {minutes} мин.",
            "{service}: вход в аккаунт в {time}. Если это не вы, перейдите по ссылке {link}",
            "Добро пожаловать в {service}! Завершите регистрацию: {link}",
            "Одноразовый пароль {service}: {alnum}",
        },
        {
            "Посылка {alnum} прибудет сегодня с {time} до 18:00. Отследить: {link}",
            "Напоминаем: приём у врача завтра в {time}. Кабинет {minutes}.",
            "Привет, это {name}! Мой новый номер 🙂",
            "Списание {amount}\u00a0₽. Код операции {code}. Не говорите код никому & никогда!",
            "Код: {code}",
        },
        {"Банк", "Почта", "Такси", "Поликлиника"},
        {"Анна", "Михаил", "Ольга", "Пётр"}},
    {"uk",
        {
            "Ваш код {service}: {code}. Нікому його не повідомляйте.",
            "{code} — код підтвердження {service}. Дійсний {minutes} хв.",
            "Вітаємо у {service}! Завершіть реєстрацію: {link}",
            "{service}: новий вхід о {time}. Це були не ви? {link}",
            "Одноразовий пароль {service}: {alnum}",
        },
        {
            "Посилка {alnum} прибуде сьогодні до {time}. Відстежити: {link}",
            "Нагадуємо про візит до лікаря завтра о {time}.",
            "Привіт, це {name}, мій новий номер 🌻",
            "Код: {code}",
        },
        {"Банк", "Пошта", "Аптека", "Їжа"},
        {"Олена", "Андрій", "Софія", "Ірина"}},
    {"el",
        {
            "Ο κωδικός {service} είναι {code}. Μην τον μοιραστείτε με κανέναν.",
            "{code}: κωδικός επαλήθευσης {service}, ισχύει για {minutes} λεπτά.",
            "Καλώς ήρθατε στο {service}! Ολοκληρώστε την εγγραφή: {link}",
            "{service}: νέα σύνδεση στις {time}. Δεν ήσασταν εσείς; {link}",
        },
        {
            "Το δέμα σας {alnum} φτάνει σήμερα έως τις {time}. {link}",
            "Υπενθύμιση: ραντεβού αύριο στις {time} με τον γιατρό {name}.",
            "Χρέωση {amount} € στον λογαριασμό σας. Κωδικός {code}.",
        },
        {"Τράπεζα", "Ταχυδρομείο", "Φαρμακείο"},
        {"Ελένη", "Γιώργος", "Μαρία"}},
    {"ar",
        {
            "رمز التحقق الخاص بك في {service} هو {code}. لا تشاركه مع أحد.",
            "{code} هو رمز {service}، صالح لمدة {minutes} دقائق.",
            "مرحبًا بك في {service}! أكمل التسجيل من هنا: {link}",
            "{service}: تم تسجيل الدخول الساعة {time}. إن لم تكن أنت: {link}",
            "كلمة المرور لمرة واحدة: {alnum}",
        },
        {
            "ستصل شحنتك {alnum} اليوم قبل الساعة {time}. التتبع: {link}",
            "تذكير: موعدك مع الطبيب غدًا الساعة {time}.",
            "تم خصم {amount} من حسابك. رمز العملية {code}.",
            "مرحبا، أنا {name}، هذا رقمي الجديد 🌙",
        },
        {"البنك", "البريد", "العيادة"},
        {"فاطمة", "أحمد", "ليلى", "يوسف"}},
    {"he",
        {
            "קוד האימות שלך ב-{service} הוא {code}. אין למסור אותו לאיש.",
            "{code} הוא הקוד שלך ל-{service}. בתוקף ל-{minutes} דקות.",
            "ברוכים הבאים ל-{service}! להשלמת ההרשמה: {link}",
            "סיסמה חד-פעמית ל-{service}: {alnum}",
        },
        {
            "החבילה {alnum} תגיע היום עד {time}. מעקב: {link}",
            "תזכורת: תור לד\"ר {name} מחר בשעה {time}.",
            "חיוב בסך {amount} ₪ בחשבונך. קוד {code}.",
        },
        {"הבנק", "הדואר", "מרפאה"},
        {"נועה", "דוד", "יעל"}},
    {"hi",
        {
            "आपका {service} कोड {code} है। इसे किसी के साथ साझा न करें।",
            "{code} आपका {service} सत्यापन कोड है। यह {minutes} मिनट तक मान्य है।",
            "{service} में आपका स्वागत है! पंजीकरण पूरा करें: {link}",
            "{service}: आपका एक बार का पासवर्ड {alnum} है।",
        },
        {
            "आपका पार्सल {alnum} आज {time} बजे तक पहुँचेगा। {link}",
            "आपके खाते से ₹{amount} निकाले गए। संदर्भ {code}.",
            "नमस्ते, मैं {name} हूँ, यह मेरा नया नंबर है 🙏",
        },
        {"बैंक", "डाक", "सूचना"},
        {"आशा", "रवि", "मीना"}},
    {"th",
        {
            "รหัส {service} ของคุณคือ {code} ห้ามบอกผู้อื่น",
            "{code} คือรหัสยืนยัน {service} ใช้ได้ภายใน {minutes} นาที",
            "ยินดีต้อนรับสู่ {service}! ลงทะเบียนให้เสร็จที่ {link}",
            "{service}: รหัสผ่านใช้ครั้งเดียว {alnum}",
        },
        {
            "พัสดุ {alnum} จะถึงวันนี้ก่อนเวลา {time} น. ติดตาม: {link}",
            "แจ้งเตือน: นัดพบแพทย์พรุ่งนี้เวลา {time} น.",
            "เงินออกจากบัญชี {amount} บาท รหัสอ้างอิง {code}",
        },
        {"ธนาคาร", "ไปรษณีย์"},
        {"สมชาย", "มาลี"}},
    {"zh",
        {
            "【{service}】您的验证码是 {code}，{minutes} 分钟内有效，请勿告知他人。",
            "【{service}】{code}（登录验证码）。如非本人操作，请访问 {link}",
            "欢迎使用 {service}！请点击 {link} 完成注册。",
            "【{service}】一次性密码：{alnum}",
        },
        {
            "您的包裹 {alnum} 今天 {time} 前送达，取件码 {code}。",
            "【提醒】明天 {time} 就诊，请携带证件。",
            "您的账户支出 {amount} 元。查询：{link}",
            "我是{name}，换号码了😀",
        },
        {"银行", "快递", "通知"},
        {"小明", "丽丽", "建国"}},
    {"ja",
        {
            "【{service}】認証コードは {code} です。他人に教えないでください。",
            "{code} があなたの {service} 確認コードです（有効期限 {minutes} 分）。",
            "{service} へようこそ！登録はこちら： {link}",
            "{service} ワンタイムパスワード：{alnum}",
        },
        {
            "お荷物 {alnum} を本日 {time} までにお届けします。 {link}",
            "【予約確認】明日 {time} にご来院ください。",
            "{amount}円のお引き落としがありました。照会番号 {code}",
            "{name}です。番号変わりました📱",
        },
        {"銀行", "宅配便", "お知らせ"},
        {"さくら", "健太", "ゆき"}},
    {"ko",
        {
            "[{service}] 인증번호는 {code}입니다. 타인에게 알려주지 마세요.",
            "[{service}] {code} ({minutes}분 이내에 입력해 주세요)",
            "{service}에 오신 것을 환영합니다! 가입 완료: {link}",
            "[{service}] 일회용 비밀번호: {alnum}",
        },
        {
            "[택배] {alnum} 오늘 {time} 이전 도착 예정입니다. {link}",
            "내일 {time} 진료 예약이 있습니다.",
            "{amount}원이 출금되었습니다. 확인번호 {code}",
        },
        {"은행", "택배", "알림"},
        {"지은", "민수", "하늘"}},
    {"vi",
        {
            "Mã {service} của bạn là {code}. Không chia sẻ mã này với bất kỳ ai.",
            "{code} là mã xác minh {service}, có hiệu lực trong {minutes} phút.",
            "Chào mừng bạn đến với {service}! Hoàn tất đăng ký: {link}",
            "{service}: mật khẩu dùng một lần {alnum}",
        },
        {
            "Bưu kiện {alnum} sẽ được giao hôm nay trước {time}. Theo dõi: {link}",
            "Nhắc lịch: khám bệnh ngày mai lúc {time}.",
            "Tài khoản của bạn bị trừ {amount} đồng. Mã giao dịch {code}.",
        },
        {"Ngân hàng", "Bưu điện"},
        {"Lan", "Dũng", "Hằng"}},
    {"tr",
        {
            "{service} kodunuz: {code}. Kimseyle paylaşmayın.",
            "{code}, {service} doğrulama kodunuzdur. {minutes} dakika geçerlidir.",
            "{service} ailesine hoş geldiniz! Kaydı tamamlayın: {link}",
            "{service}: saat {time} itibarıyla yeni giriş. Siz değilseniz: {link}",
            "Tek kullanımlık şifreniz: {alnum}",
        },
        {
            "Kargonuz {alnum} bugün {time} saatine kadar teslim edilecek. {link}",
            "Hatırlatma: yarın {time} randevunuz var.",
            "Hesabınızdan {amount} TL çekildi. İşlem no {code}.",
            "Selam ben {name}, numaram değişti 😊",
        },
        {"Banka", "Kargo", "Eczane", "Bilgi"},
        {"Ayşe", "Çağrı", "İpek", "Gökhan"}},
    };
    return texts;
}

// clang-format on

} // namespace orl::demo
