#include "identity_names.h"

namespace orl::demo {

namespace {

constexpr NameRow rows[] = {
    {"english", nullptr, "Adam;Callum;Declan;Gareth;Howard;Jasper;Marcus;Toby",
     "Alice;Beth;Carys;Fiona;Hannah;Imogen;Rosalind;Tessa",
     "Ashford;Bramley;Carver;Dunmore;Ellery;Hollis;Thornton;Wexler", "g s"},
    {"spanish", nullptr, "Álvaro;Diego;Emilio;Gonzalo;Íñigo;Mateo;Rubén;Tomás",
     "Alba;Beatriz;Begoña;Inés;Lucía;Marisol;Noelia;Ximena",
     "Aguirre Soto;Bravo León;Castaño Ruiz;Duarte Gil;Fuentes Vega;Muñoz Rey;Peña Lara;Zúñiga Mora", "g s"},
    {"french", nullptr, "Antoine;Benoît;Étienne;François;Gaël;Luc;Mathieu;Théo",
     "Agnès;Camille;Chloé;Élise;Hélène;Margaux;Noémie;Zoé",
     "Aubry;Bérard;Chevrier;Delacour;Fauvel;Lefèvre;Mercier;Rousselot", "g s"},
    {"arabic", nullptr, "أحمد;باسم;خالد;زياد;سامي;طارق;فادي;يوسف", "أمل;دانا;رنا;سلمى;عبير;لينا;نور;هدى",
     "الحداد;الخطيب;الزعبي;العمري;القضاة;المجالي;النجار;حجازي", "g s"},
    {"bulgarian", nullptr, "Борис;Васил;Георги;Димитър;Ивайло;Калоян;Николай;Стоян",
     "Ана;Десислава;Елена;Ивана;Калина;Мария;Невена;Цветана",
     "Ангелов/Ангелова;Василев/Василева;Димитров/Димитрова;Колев/Колева;Маринов/Маринова;Петков/"
     "Петкова;Стоянов/"
     "Стоянова;Тодоров/Тодорова",
     "g s"},
    {"Bengali", nullptr, "আনিস;ইমরান;কামাল;জাহিদ;তানভীর;ফারুক;মাহমুদ;রাশেদ",
     "আয়েশা;জেসমিন;তাসলিমা;নাসরিন;ফারজানা;মৌসুমী;রুবিনা;শিরিন",
     "আহমেদ;ইসলাম;চৌধুরী;তালুকদার;মজুমদার;রহমান;সরকার;হোসেন", "g s"},
    {"czech", nullptr, "Adam;David;Jiří;Lukáš;Ondřej;Pavel;Tomáš;Václav",
     "Anežka;Barbora;Eliška;Hana;Jitka;Lenka;Tereza;Zuzana",
     "Bureš/Burešová;Dvořák/Dvořáková;Havel/Havlová;Kovář/Kovářová;Němec/Němcová;Růžička/Růžičková;Souček/"
     "Součková;Vlček/Vlčková",
     "g s"},
    {"danish", nullptr, "Anders;Bjarke;Emil;Jeppe;Mikkel;Rasmus;Søren;Troels",
     "Anne;Freja;Ida;Kirsten;Maja;Pernille;Sofie;Åse",
     "Andersen;Bech;Damgaard;Friis;Kjær;Lund;Nørgaard;Østergaard", "g s"},
    {"german", nullptr, "Anton;Benedikt;Florian;Jörg;Lukas;Matthias;Sebastian;Ulrich",
     "Anja;Brigitte;Franziska;Greta;Käthe;Lena;Sabine;Ute",
     "Albrecht;Brückner;Eichhorn;Förster;Krämer;Lindner;Schäfer;Weiß", "g s"},
    {"greek", nullptr, "Αλέξανδρος;Γιώργος;Δημήτρης;Κώστας;Μιχάλης;Νίκος;Παύλος;Στέφανος",
     "Αγγελική;Βασιλική;Ελένη;Ζωή;Ιωάννα;Κατερίνα;Μαρία;Σοφία",
     "Αντωνίου;Βλάχος/Βλάχου;Γεωργίου;Καραγιάννης/Καραγιάννη;Λάμπρου;Νικολαΐδης/Νικολαΐδου;Παππάς/Παππά;"
     "Σταύρου",
     "g s"},
    {"persian", nullptr, "آرش;بهرام;جمشید;داریوش;سهراب;فرهاد;کامران;مهدی",
     "آزاده;پریسا;ژاله;سیمین;شیرین;فرشته;مینا;نسرین", "احمدی;امینی;رستمی;صادقی;فروهر;کریمی;نوری;یزدانی",
     "g s"},
    {"finnish", nullptr, "Antti;Eero;Heikki;Ilkka;Jussi;Mikko;Olli;Väinö",
     "Aino;Emmi;Hanna;Kaisa;Leena;Päivi;Riikka;Tuuli",
     "Aaltonen;Hämäläinen;Järvinen;Koskinen;Laine;Mäkelä;Nieminen;Salo", "g s"},
    {"hungarian", nullptr, "András;Balázs;Csaba;Dénes;Gergő;István;László;Zoltán",
     "Ágnes;Borbála;Csilla;Eszter;Judit;Kinga;Réka;Zsófia",
     "Balogh;Csonka;Fehér;Gulyás;Kővári;Pásztor;Szűcs;Varga", "s g"},
    {"armenian", nullptr, "Արամ;Գագիկ;Դավիթ;Կարեն;Հայկ;Նարեկ;Սուրեն;Տիգրան",
     "Անահիտ;Գայանե;Լիլիթ;Կարինե;Մարիամ;Նարինե;Շուշան;Սոնա",
     "Ավագյան;Գրիգորյան;Դանիելյան;Կարապետյան;Մարտիրոսյան;Պետրոսյան;Սարգսյան;Տերյան", "g s"},
    {"indonesian", nullptr, "Agus;Budi;Dimas;Eko;Fajar;Hendra;Rizki;Yusuf",
     "Ayu;Citra;Dewi;Fitri;Indah;Lestari;Putri;Sari",
     "Gunawan;Hidayat;Kurniawan;Nugroho;Pratama;Santoso;Setiawan;Wijaya", "g s"},
    {"icelandic", nullptr, "Árni;Birkir;Einar;Guðmundur;Jón;Ólafur;Þór;Ægir",
     "Anna;Birna;Elín;Guðrún;Hildur;Katrín;Sólveig;Þórunn",
     "Árnason/Árnadóttir;Einarsson/Einarsdóttir;Guðjónsson/Guðjónsdóttir;Jónsson/Jónsdóttir;Karlsson/"
     "Karlsdóttir;Ólafsson/Ólafsdóttir;Sveinsson/Sveinsdóttir;Þorsteinsson/Þorsteinsdóttir",
     "g s"},
    {"italian", nullptr, "Alessio;Bruno;Davide;Enzo;Fabrizio;Luca;Matteo;Niccolò",
     "Arianna;Bianca;Chiara;Elisa;Giulia;Ilaria;Martina;Viola",
     "Barbieri;Colombo;De Santis;Fontana;Galli;Lombardi;Moretti;Vitale", "g s"},
    {"japanese", nullptr, "一郎;健太;大輔;拓海;浩二;翔太;誠;隆", "彩花;恵子;愛;智子;真由美;美咲;葵;陽子",
     "中村;佐藤;伊藤;吉田;小林;山口;松本;高橋", "s g"},
    {"georgian", nullptr, "ავთანდილ;ბესიკ;გიორგი;დავით;ლევან;ნიკა;ოთარ;ზურაბ",
     "ანა;ეკა;თამარ;ირინე;ლელა;მარიამ;ნინო;ქეთევან",
     "ბერიძე;გელაშვილი;კაპანაძე;ლომიძე;მაისურაძე;ნოზაძე;ჩხეიძე;ხარაძე", "g s"},
    {"kazakh", nullptr, "Айдар;Бауыржан;Дәурен;Ерлан;Қанат;Нұрлан;Санжар;Тимур",
     "Айгүл;Әсел;Дана;Жанар;Қарлығаш;Мәдина;Сәуле;Шолпан",
     "Ахметов/Ахметова;Әбенов/Әбенова;Жұмабаев/Жұмабаева;Ибраев/Ибраева;Қасымов/Қасымова;Нұрғалиев/"
     "Нұрғалиева;"
     "Оспанов/Оспанова;Сейтқали",
     "g s"},
    {"korean", nullptr, "건우;도윤;민준;서준;예준;지호;태현;현우", "나연;미영;서연;수아;유진;지민;하은;혜진",
     "강;김;박;윤;이;정;최;한", "sg"},
    {"latvian", nullptr, "Andris;Edgars;Jānis;Kārlis;Mārtiņš;Pēteris;Toms;Uldis",
     "Anna;Dace;Elīna;Ilze;Kristīne;Līga;Māra;Zane",
     "Bērziņš/Bērziņa;Eglītis/Eglīte;Kalniņš/Kalniņa;Krūmiņš/Krūmiņa;Liepiņš/Liepiņa;Ozols/Ozola;Vītols/"
     "Vītola;"
     "Zariņš/Zariņa",
     "g s"},
    {"montenegro", nullptr, "Балша;Блажо;Вук;Ђорђије;Лука;Марко;Никола;Петар",
     "Ана;Војислава;Даница;Јелена;Ксенија;Милица;Радмила;Стана",
     "Вујовић;Ђукановић;Лакић;Мартиновић;Перовић;Поповић;Радуловић;Церовић", "g s"},
    {"nepali", nullptr, "अर्जुन;कृष्ण;गोपाल;दीपक;प्रकाश;बिनोद;राजेश;सुनिल",
     "अनिता;कमला;गीता;निर्मला;पूजा;बिमला;रीता;सरिता", "अधिकारी;खड्का;गुरुङ;थापा;पौडेल;भण्डारी;राई;श्रेष्ठ", "g s"},
    {"dutch", nullptr, "Bas;Daan;Gijs;Jeroen;Koen;Maarten;Ruben;Wouter",
     "Anouk;Femke;Fleur;Ilse;Lotte;Maaike;Renée;Sanne",
     "Bakker;de Graaf;Hoekstra;Jansen;Kuipers;van der Meer;Verhoeven;Zijlstra", "g s"},
    {"norwegian", nullptr, "Bjørn;Eirik;Håkon;Jonas;Kåre;Magnus;Sindre;Øyvind",
     "Astrid;Berit;Guro;Ingrid;Kari;Marte;Silje;Åshild",
     "Berge;Dahl;Fjeld;Haugen;Lunde;Nygård;Solbakken;Østby", "g s"},
    {"polish", nullptr, "Bartosz;Grzegorz;Jakub;Łukasz;Maciej;Paweł;Stanisław;Tomasz",
     "Agnieszka;Dorota;Ewa;Joanna;Małgorzata;Natalia;Wanda;Zofia",
     "Adamczyk;Dąbrowski/Dąbrowska;Jabłoński/Jabłońska;Kaczmarek;Maliński/Malińska;Nowak;Wójcik;Zieliński/"
     "Zielińska",
     "g s"},
    {"portuguese", nullptr, "André;Caio;Duarte;Gonçalo;João;Nuno;Rafael;Vítor",
     "Beatriz;Catarina;Conceição;Inês;Luísa;Mariana;Sofia;Tânia",
     "Almeida;Barbosa;Carvalho;Figueiredo;Lourenço;Magalhães;Nóbrega;Teixeira", "g s"},
    {"romanian", nullptr, "Andrei;Bogdan;Cătălin;Dragoș;Ionuț;Mihai;Radu;Ștefan",
     "Ana;Bianca;Crina;Elena;Ioana;Mădălina;Raluca;Simona",
     "Albu;Bălan;Crăciun;Dumitru;Ionescu;Lupu;Munteanu;Țurcanu", "g s"},
    {"russian", nullptr, "Алексей;Виктор;Григорий;Денис;Игорь;Кирилл;Роман;Фёдор",
     "Алла;Вера;Дарья;Зоя;Ксения;Людмила;Ольга;Юлия",
     "Белов/Белова;Воронин/Воронина;Громов/Громова;Ершов/Ершова;Зайцев/Зайцева;Крылов/Крылова;Лебедев/"
     "Лебедева;"
     "Соболев/Соболева",
     "g s"},
    {"slovak", nullptr, "Dušan;Filip;Juraj;Ľubomír;Marek;Peter;Štefan;Viliam",
     "Alžbeta;Daniela;Gabriela;Jana;Katarína;Ľudmila;Martina;Žaneta",
     "Balog/Balogová;Hudák/Hudáková;Kováč/Kováčová;Lukáč/Lukáčová;Polák/Poláková;Sloboda/Slobodová;Tóth/"
     "Tóthová;"
     "Varga/Vargová",
     "g s"},
    {"slovenian", nullptr, "Andrej;Boštjan;Gregor;Jože;Luka;Matej;Rok;Žiga",
     "Ajda;Barbara;Katja;Maja;Nina;Petra;Špela;Živa", "Golob;Hočevar;Kos;Kovač;Mlakar;Novak;Oblak;Zupančič",
     "g s"},
    {"serbian", "latin-serbia", "Aleksandar;Boško;Dušan;Đorđe;Miloš;Nemanja;Stefan;Željko",
     "Ana;Branka;Jelena;Ljiljana;Milena;Snežana;Vesna;Živana",
     "Antić;Đorđević;Ilić;Jovanović;Kostić;Marković;Nikolić;Živković", "g s"},
    {"serbian", nullptr, "Александар;Бошко;Душан;Ђорђе;Милош;Немања;Стефан;Жељко",
     "Ана;Бранка;Јелена;Љиљана;Милена;Снежана;Весна;Живана",
     "Антић;Ђорђевић;Илић;Јовановић;Костић;Марковић;Николић;Живковић", "g s"},
    {"swedish", nullptr, "Anders;Björn;Fredrik;Göran;Johan;Måns;Oskar;Viktor",
     "Annika;Ebba;Frida;Helena;Karin;Linnéa;Malin;Åsa",
     "Bergqvist;Dahlgren;Ekström;Forsberg;Hedlund;Lindström;Sjögren;Åkesson", "g s"},
    {"turkish", nullptr, "Ahmet;Barış;Cem;Emre;Hakan;Murat;Oğuz;Ümit",
     "Ayşe;Burcu;Çiğdem;Elif;Gülşen;Melek;Selin;Zeynep", "Aksoy;Çelik;Demir;Güneş;Kaya;Öztürk;Şahin;Yılmaz",
     "g s"},
    {"ukrainian", nullptr, "Андрій;Богдан;Василь;Дмитро;Ігор;Олексій;Остап;Юрій",
     "Ганна;Дарина;Леся;Марічка;Оксана;Світлана;Соломія;Яна",
     "Бондаренко;Гнатюк;Іваненко;Коваль;Лисенко;Мельник;Савченко;Ткачук", "g s"},
    {"vietnamese", nullptr, "Anh Tuấn;Đức Huy;Hoàng Nam;Minh Quân;Quốc Bảo;Thanh Tùng;Trung Kiên;Văn Dũng",
     "Bích Ngọc;Hồng Nhung;Kim Chi;Mai Anh;Ngọc Lan;Phương Thảo;Thu Hà;Thùy Linh",
     "Bùi;Đặng;Hoàng;Lê;Nguyễn;Phạm;Trần;Vũ", "s g"},
    {"chinese", "taiwan", "冠宇;家豪;志偉;建宏;承恩;明哲;柏翰;國強",
     "佳蓉;怡君;淑芬;淑惠;美玲;詩涵;雅婷;麗華", "劉;吳;張;李;林;王;陳;黃", "sg"},
    {"chinese", nullptr, "伟;强;志远;文博;明;浩然;磊;建国", "丽;婷婷;娜;敏;晓燕;芳;雪梅;静",
     "刘;吴;周;张;李;杨;王;陈", "sg"},
};

} // namespace

const NameRow *nameRow(const QString &nameSet, const QString &country) {
    for (const NameRow &row : rows) {
        const bool fits = !row.country || country == QLatin1String(row.country);
        if (fits && nameSet == QLatin1String(row.nameSet)) return &row;
    }
    return nullptr;
}

} // namespace orl::demo
