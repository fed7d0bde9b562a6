#include "identity_places.h"

namespace orl::demo {

namespace {

constexpr const char *streetFirst = "{street} {n}/{zip} {city}";
constexpr const char *numberFirst = "{n} {street}/{zip} {city}";

constexpr PlaceRow rows[] = {
    {"united-states", nullptr,
     "Portland|9720#|45.52|-122.68|OR;Austin|7870#|30.27|-97.74|TX;Madison|5370#|43.07|-89.40|WI;"
     "Savannah|3140#|32.08|-81.09|GA",
     "Alder Street;Birch Avenue;Cedar Lane;Juniper Road;Maple Drive;Willow Court",
     "{n} {street}/{city}, {region} {zip}", "(503) 555-01##;(512) 555-01##;(608) 555-01##;(912) 555-01##",
     "{s} & Sons Inc."},
    {"jordan", nullptr,
     "عمّان|1118#|31.95|35.93|العاصمة;إربد|2111#|32.56|35.85|إربد;الزرقاء|1311#|32.07|36.09|الزرقاء;العقبة|"
     "7711#|29.53|35.01|"
     "العقبة",
     "شارع الياسمين;شارع الزيتون;شارع المدينة;شارع النخيل", "{street} {n}/{city} {zip}",
     "06 000 00##;02 000 00##;05 000 00##;03 000 00##", "شركة {s}"},
    {"bulgaria", nullptr,
     "София|10##|42.70|23.32|;Пловдив|40##|42.14|24.75|;Варна|90##|43.21|27.92|;Русе|70##|43.85|25.95|",
     "ул. Липа;ул. Роза;бул. Дунав;ул. Орех", streetFirst, "02 000 00##;032 000 0##;052 000 0##;082 000 0##",
     "{s} ЕООД"},
    {"bangladesh", nullptr,
     "ঢাকা|12##|23.78|90.40|;চট্টগ্রাম|42##|22.36|91.80|;খুলনা|91##|22.82|89.55|;সিলেট|31##|24.90|91.87|",
     "শাপলা সড়ক;গোলাপ সড়ক;নদী সড়ক;বকুল সড়ক", "{n} {street}/{city} {zip}",
     "02-000000##;031-00000##;041-00000##;0821-0000##", "{s} ট্রেডার্স"},
    {"czech-republic", nullptr,
     "Praha|1#0 00|50.08|14.43|;Brno|60# 00|49.19|16.61|;Plzeň|30# 00|49.75|13.38|;Ostrava|70# "
     "00|49.83|18.29|",
     "Lipová;Dlouhá;Na Kopci;Zahradní", streetFirst, "200 000 0##;500 000 0##;300 000 0##;590 000 0##",
     "{s} s.r.o."},
    {"denmark", nullptr,
     "Aarhus|82##|56.16|10.20|;Odense|52##|55.40|10.39|;Aalborg|92##|57.05|9.92|;Esbjerg|67##|55.47|8.45|",
     "Bøgevej;Havnegade;Kirkestræde;Skovbrynet", streetFirst,
     "00 00 01 ##;00 00 02 ##;00 00 03 ##;00 00 04 ##", "{s} ApS"},
    {"austria", nullptr,
     "Wien|10#0|48.21|16.37|;Graz|80##|47.07|15.44|;Linz|40##|48.31|14.29|;Salzburg|50##|47.80|13.04|",
     "Ahorngasse;Bachstraße;Lindenweg;Mühlgasse", streetFirst,
     "01 000 00 ##;0316 00 00 ##;0732 00 00 ##;0662 00 00 ##", "{s} GmbH"},
    {"germany", nullptr,
     "Berlin|104##|52.52|13.40|;Hamburg|203##|53.55|9.99|;Köln|506##|50.94|6.96|;München|803##|48.14|11.58|",
     "Ahornweg;Birkenstraße;Gartenstraße;Mühlenweg", streetFirst,
     "030 23125 ###;040 66969 ###;0221 4710 ###;089 99998 ###", "{s} GmbH"},
    {"greece", nullptr,
     "Αθήνα|10# ##|37.98|23.73|;Θεσσαλονίκη|54# ##|40.64|22.94|;Πάτρα|26# ##|38.25|21.73|;Βόλος|38# "
     "##|39.36|22.94|",
     "Οδός Ελιάς;Οδός Ροδιάς;Λεωφόρος Δάφνης;Οδός Πεύκων", streetFirst,
     "210 000 00##;2310 000 0##;2610 000 0##;24210 00 0##", "{s} ΕΠΕ"},
    {"australia", nullptr,
     "Newcastle|2300|-32.93|151.78|NSW;Bendigo|3550|-36.76|144.28|VIC;Cairns|4870|-16.92|145.77|QLD;"
     "Fremantle|6160|-32.05|115.75|WA",
     "Banksia Street;Kookaburra Court;Station Road;Wattle Grove", "{n} {street}/{city} {region} {zip}",
     "(02) 5550 ####;(03) 5550 ####;(07) 5550 ####;(08) 5550 ####", "{s} Pty Ltd"},
    {"canada", "french",
     "Québec|G1R #A#|46.81|-71.21|QC;Sherbrooke|J1H #B#|45.40|-71.89|QC;Gatineau|J8X #C#|45.43|-75.72|QC;"
     "Moncton|E1C #G#|46.09|-64.77|NB",
     "rue des Érables;rue du Moulin;chemin du Lac;avenue des Pins", "{n}, {street}/{city} ({region}) {zip}",
     "418-555-01##;819-555-01##;873-555-01##;506-555-01##", "{s} et Fils inc."},
    {"canada", nullptr,
     "Halifax|B3H #A#|44.65|-63.58|NS;Guelph|N1H #B#|43.55|-80.25|ON;Regina|S4P #C#|50.45|-104.61|SK;"
     "Kelowna|V1Y #G#|49.89|-119.49|BC",
     "Harbour Street;Lakeview Road;Maple Avenue;Spruce Crescent", "{n} {street}/{city} {region} {zip}",
     "902-555-01##;519-555-01##;306-555-01##;250-555-01##", "{s} Ltd."},
    {"united-kingdom", nullptr,
     "Leeds|LS# #AB|53.80|-1.55|;Bristol|BS# #DE|51.45|-2.59|;Edinburgh|EH# #FG|55.95|-3.19|;Norwich|NR# "
     "#HJ|52.63|1.30|",
     "Abbey Road;Chapel Lane;Mill Street;Orchard Close", "{n} {street}/{city}/{zip}",
     "0113 496 0###;0117 496 0###;0131 496 0###;01632 960###", "{s} & Co Ltd"},
    {"new-zealand", nullptr,
     "Nelson|7010|-41.27|173.28|;Napier|4110|-39.49|176.91|;Dunedin|9016|-45.87|170.50|;Tauranga|3110|-37.69|"
     "176.17|",
     "Fern Street;Kauri Lane;Rata Road;Totara Avenue", "{n} {street}/{city} {zip}",
     "03 000 00##;06 000 00##;03 000 01##;07 000 00##", "{s} Limited"},
    {"philippines", nullptr,
     "Quezon City|11##|14.65|121.05|Metro Manila;Cebu City|6000|10.32|123.89|Cebu;Davao "
     "City|8000|7.07|125.61|Davao del Sur;"
     "Baguio|2600|16.41|120.60|Benguet",
     "Acacia Street;Mabini Street;Narra Avenue;Sampaguita Street", "{n} {street}/{zip} {city}, {region}",
     "(02) 0000 00##;(032) 000 00##;(082) 000 00##;(074) 000 00##", "{s} Trading Corp."},
    {"uganda", nullptr,
     "Kampala|P.O. Box 1##|0.32|32.58|;Jinja|P.O. Box 2##|0.43|33.21|;Mbarara|P.O. Box 3##|-0.61|30.65|;"
     "Gulu|P.O. Box 4##|2.77|32.30|",
     "Crane Road;Hill Lane;Lake Drive;Market Street", "{n} {street}/{zip}/{city}",
     "0414 000 0##;0434 000 0##;0485 000 0##;0471 000 0##", "{s} Enterprises Ltd"},
    {"south-africa", nullptr,
     "Cape "
     "Town|80##|-33.93|18.42|;Durban|40##|-29.86|31.02|;Bloemfontein|93##|-29.12|26.21|;Polokwane|06##|-23."
     "90|29.46|",
     "Acacia Road;Baobab Street;Long Street;Protea Avenue", "{n} {street}/{city}/{zip}",
     "021 000 00##;031 000 00##;051 000 00##;015 000 00##", "{s} (Pty) Ltd"},
    {"argentina", nullptr,
     "Rosario|S20##ABC|-32.95|-60.66|Santa "
     "Fe;Mendoza|M55##DEF|-32.89|-68.84|Mendoza;Salta|A44##GHI|-24.79|-65.41|Salta;"
     "Neuquén|Q83##JKL|-38.95|-68.06|Neuquén",
     "Calle Los Álamos;Avenida Belgrano;Calle Rivera;Calle Mitre", "{street} {n}/{zip} {city}, {region}",
     "0341 000-00##;0261 000-00##;0387 000-00##;0299 000-00##", "{s} S.R.L."},
    {"spain", nullptr,
     "Sevilla|410##|37.39|-5.98|;Zaragoza|500##|41.65|-0.89|;Oviedo|330##|43.36|-5.85|;Girona|170##|41.98|2."
     "82|",
     "Calle del Olivo;Calle Mayor;Plaza de la Fuente;Avenida del Río", "{street}, {n}/{zip} {city}",
     "950 000 0##;970 000 0##;980 000 0##;970 000 1##", "{s} S.L."},
    {"peru", nullptr,
     "Lima|150##|-12.05|-77.04|;Arequipa|040##|-16.41|-71.54|;Cusco|080##|-13.52|-71.97|;Trujillo|130##|-8."
     "11|-79.03|",
     "Jirón Los Cedros;Avenida El Sol;Calle Las Flores;Jirón Amazonas", "{street} {n}/{city} {zip}",
     "01 000 00##;054 00 00##;084 00 00##;044 00 00##", "{s} S.A.C."},
    {"venezuela", nullptr,
     "Caracas|10##|10.49|-66.90|Distrito "
     "Capital;Maracaibo|40##|10.65|-71.64|Zulia;Mérida|51##|8.59|-71.16|Mérida;"
     "Barquisimeto|30##|10.07|-69.35|Lara",
     "Calle Bolívar;Avenida Los Mangos;Calle Páez;Avenida Miranda", "{street}, N° {n}/{city} {zip}, {region}",
     "0212-000.00.##;0261-000.00.##;0274-000.00.##;0251-000.00.##", "{s} C.A."},
    {"iran", nullptr,
     "تهران|11###-#####|35.70|51.39|;شیراز|71###-#####|29.59|52.58|;اصفهان|81###-#####|32.65|51.67|;تبریز|51#"
     "##-#####|38.08|46.29|",
     "خیابان بهار;خیابان گلستان;کوچه یاس;خیابان سرو", "{street} {n}/{city}/{zip}",
     "021 0000 00##;071 0000 00##;031 0000 00##;041 0000 00##", "شرکت {s}"},
    {"finland", nullptr,
     "Tampere|331##|61.50|23.76|;Turku|201##|60.45|22.27|;Oulu|901##|65.01|25.47|;Kuopio|701##|62.89|27.68|",
     "Koivukatu;Järvitie;Metsäpolku;Satamakatu", streetFirst,
     "03 000 00##;02 000 00##;08 000 00##;017 000 00##", "{s} Oy"},
    {"belgium", "dutch",
     "Gent|90##|51.05|3.73|;Antwerpen|20##|51.22|4.40|;Leuven|30##|50.88|4.70|;Brugge|80##|51.21|3.22|",
     "Kerkstraat;Molenweg;Lindelaan;Veldstraat", streetFirst,
     "09 000 00 ##;03 000 00 ##;016 00 00 ##;050 00 00 ##", "{s} BV"},
    {"belgium", nullptr,
     "Liège|40##|50.63|5.57|;Namur|50##|50.47|4.87|;Mons|70##|50.45|3.95|;Tournai|75##|50.61|3.39|",
     "Rue du Moulin;Rue de l'Église;Avenue des Tilleuls;Place du Marché", streetFirst,
     "04 000 00 ##;081 00 00 ##;065 00 00 ##;069 00 00 ##", "{s} SRL"},
    {"france", nullptr,
     "Nantes|44##0|47.22|-1.55|;Dijon|21##0|47.32|5.04|;Grenoble|38##0|45.19|5.72|;Toulouse|31##0|43.60|1."
     "44|",
     "rue des Tilleuls;rue du Moulin;avenue de la Gare;place du Marché", numberFirst,
     "02 61 91 ## ##;03 53 01 ## ##;04 65 71 ## ##;05 36 49 ## ##", "{s} SARL"},
    {"hungary", nullptr,
     "Budapest|10##|47.50|19.04|;Szeged|67##|46.25|20.15|;Pécs|76##|46.07|18.23|;Győr|90##|47.69|17.63|",
     "Akácfa utca;Kossuth utca;Malom utca;Szőlő utca", "{city}/{street} {n}./{zip}",
     "06 1 000 00##;06 62 000 0##;06 72 000 0##;06 96 000 0##", "{s} Kft."},
    {"armenia", nullptr,
     "Երևան|00##|40.18|44.51|;Գյումրի|31##|40.79|43.85|;Վանաձոր|20##|40.81|44.49|;Գորիս|32##|39.51|46.34|",
     "Այգու փողոց;Գետի փողոց;Ծիրանի փողոց;Շուկայի փողոց", streetFirst,
     "010 00-00-##;0312 0-00-##;0322 0-00-##;0284 0-00-##", "{s} ՍՊԸ"},
    {"indonesia", nullptr,
     "Bandung|401##|-6.91|107.61|Jawa Barat;Yogyakarta|551##|-7.80|110.36|DI "
     "Yogyakarta;Denpasar|801##|-8.65|115.22|Bali;"
     "Padang|251##|-0.95|100.35|Sumatera Barat",
     "Jl. Kenanga;Jl. Melati;Jl. Merdeka;Jl. Pahlawan", "{street} No. {n}/{city}, {region} {zip}",
     "(022) 0000 0##;(0274) 000 0##;(0361) 000 0##;(0751) 000 0##", "PT {s} Jaya"},
    {"iceland", nullptr,
     "Reykjavík|101|64.14|-21.93|;Akureyri|600|65.68|-18.10|;Selfoss|800|63.93|-21.00|;Ísafjörður|400|66.07|-"
     "23.12|",
     "Birkigata;Hafnarstræti;Lækjargata;Sólvellir", streetFirst, "000 01##;000 02##;000 03##;000 04##",
     "{s} ehf."},
    {"italy", nullptr,
     "Bologna|401##|44.49|11.34|BO;Torino|101##|45.07|7.69|TO;Lecce|73100|40.35|18.17|LE;Perugia|061##|43.11|"
     "12.39|PG",
     "Via dei Tigli;Via Roma;Piazza del Mercato;Via del Mulino", "{street}, {n}/{zip} {city} ({region})",
     "051 000 00##;011 000 00##;0832 000 0##;075 000 00##", "{s} S.r.l."},
    {"japan", nullptr,
     "札幌市|060-00##|43.06|141.35|北海道;仙台市|980-00##|38.27|140.87|宮城県;金沢市|920-00##|36.56|136.65|"
     "石川県;"
     "高松市|760-00##|34.34|134.05|香川県",
     "桜町;緑町;本町;松原", "〒{zip}/{region}{city}{street}{n}",
     "011-000-00##;022-000-00##;076-000-00##;087-000-00##", "株式会社{s}"},
    {"georgia", nullptr,
     "თბილისი|01##|41.72|44.79|;ბათუმი|60##|41.65|41.64|;ქუთაისი|46##|42.27|42.70|;თელავი|22##|41.92|45.47|",
     "ვარდების ქუჩა;მთის ქუჩა;ბაზრის ქუჩა;ვაზის ქუჩა", streetFirst,
     "032 000 00 ##;0422 00 00 ##;0431 00 00 ##;0350 00 00 ##", "შპს {s}"},
    {"kazakhstan", nullptr,
     "Алматы|0500##|43.24|76.89|;Астана|0100##|51.17|71.43|;Шымкент|1600##|42.34|69.59|;Қарағанды|1000##|49."
     "81|73.09|",
     "Абай көшесі;Жібек жолы;Бұлақ көшесі;Дала көшесі", "{street} {n}/{city} {zip}",
     "8 (727) 000-00-##;8 (7172) 00-00-##;8 (7252) 00-00-##;8 (7212) 00-00-##", "{s} ЖШС"},
    {"south-korea", nullptr,
     "부산광역시|481##|35.18|129.08|;대전광역시|340##|36.35|127.38|;광주광역시|617##|35.16|126.85|;제주시|"
     "631##|33.50|126.53|",
     "느티나무로;은행나무길;중앙로;해맞이길", "{city} {street} {n}/{zip}",
     "051-000-00##;042-000-00##;062-000-00##;064-000-00##", "주식회사 {s}상사"},
    {"latvia", nullptr,
     "Rīga|LV-10##|56.95|24.11|;Liepāja|LV-34##|56.51|21.01|;Cēsis|LV-41##|57.31|25.27|;Jelgava|LV-30##|56."
     "65|23.71|",
     "Bērzu iela;Liepu iela;Ostas iela;Tirgus iela", "{street} {n}/{city}, {zip}",
     "60 000 0##;60 000 1##;60 000 2##;60 000 3##", "SIA {s}"},
    {"montenegrin", nullptr,
     "Подгорица|810##|42.44|19.26|;Котор|853##|42.42|18.77|;Никшић|814##|42.77|18.95|;Бар|850##|42.10|19.09|",
     "Липова улица;Морска улица;Планинска улица;Улица слободе", streetFirst,
     "020 000 0##;032 000 0##;040 000 0##;030 000 0##", "{s} ДОО"},
    {"nepal", nullptr,
     "काठमाडौं|446##|27.72|85.32|;पोखरा|337##|28.21|83.99|;विराटनगर|566##|26.45|87.27|;जनकपुर|456##|26.73|85."
     "92|",
     "गुलाब मार्ग;तारा मार्ग;नदी मार्ग;हिमाल मार्ग", "{street} {n}/{city} {zip}",
     "01-00000##;061-0000##;021-0000##;041-0000##", "{s} ट्रेडर्स"},
    {"netherlands", nullptr,
     "Utrecht|35## AB|52.09|5.12|;Groningen|97## CD|53.22|6.57|;Zwolle|80## EF|52.51|6.09|;Breda|48## "
     "GH|51.59|4.78|",
     "Beukenlaan;Dorpsstraat;Kerkweg;Molenstraat", streetFirst,
     "030 000 00##;050 000 00##;038 000 00##;076 000 00##", "{s} B.V."},
    {"norway", nullptr,
     "Bergen|50##|60.39|5.32|;Trondheim|70##|63.43|10.40|;Stavanger|40##|58.97|5.73|;Tromsø|90##|69.65|18."
     "96|",
     "Bjørkeveien;Fjordgata;Kirkeveien;Storgata", streetFirst,
     "00 00 01 ##;00 00 02 ##;00 00 03 ##;00 00 04 ##", "{s} AS"},
    {"poland", nullptr,
     "Kraków|30-0##|50.06|19.94|;Gdańsk|80-0##|54.35|18.65|;Łódź|90-0##|51.76|19.46|;Poznań|60-0##|52.41|16."
     "93|",
     "ul. Lipowa;ul. Długa;ul. Ogrodowa;ul. Młyńska", streetFirst,
     "12 000 00 ##;58 000 00 ##;42 000 00 ##;61 000 00 ##", "{s} sp. z o.o."},
    {"brazil", nullptr,
     "Curitiba|800##-0##|-25.43|-49.27|PR;Recife|500##-0##|-8.05|-34.90|PE;Belo "
     "Horizonte|301##-0##|-19.92|-43.94|MG;"
     "Manaus|690##-0##|-3.12|-60.02|AM",
     "Rua das Acácias;Avenida Brasil;Rua do Sol;Rua Ipê", "{street}, {n}/{city} - {region}/{zip}",
     "(41) 0000-00##;(81) 0000-00##;(31) 0000-00##;(92) 0000-00##", "{s} Ltda."},
    {"portugal", nullptr,
     "Coimbra|30##-0##|40.21|-8.43|;Braga|47##-0##|41.55|-8.43|;Évora|70##-0##|38.57|-7.91|;Faro|80##-0##|37."
     "02|-7.93|",
     "Rua da Oliveira;Rua do Moinho;Avenida da Liberdade;Largo da Fonte", "{street}, {n}/{zip} {city}",
     "239 000 0##;253 000 0##;266 000 0##;289 000 0##", "{s} Lda."},
    {"moldova", nullptr,
     "Chișinău|MD-20##|47.01|28.86|;Bălți|MD-31##|47.76|27.93|;Cahul|MD-39##|45.90|28.20|;Orhei|MD-35##|47."
     "38|28.82|",
     "str. Livezilor;str. Morii;str. Teilor;str. Viilor", "{street} {n}/{zip} {city}",
     "022 000-0##;0231 00-0##;0299 00-0##;0235 00-0##", "{s} SRL"},
    {"romania", nullptr,
     "Cluj-Napoca|4000##|46.77|23.60|;Iași|7000##|47.16|27.59|;Brașov|5000##|45.65|25.60|;Timișoara|3000##|"
     "45.75|21.23|",
     "Strada Teilor;Strada Morii;Bulevardul Unirii;Strada Livezii", "{street} nr. {n}/{zip} {city}",
     "0264 000 0##;0232 000 0##;0268 000 0##;0256 000 0##", "{s} SRL"},
    {"russia", nullptr,
     "Казань|4200##|55.79|49.12|;Томск|6340##|56.48|84.95|;Псков|1800##|57.82|28.33|;Самара|4430##|53.20|50."
     "15|",
     "ул. Берёзовая;ул. Заречная;ул. Лесная;ул. Садовая", "{street}, д. {n}/г. {city}/{zip}",
     "8 (843) 000-00-##;8 (3822) 00-00-##;8 (8112) 00-00-##;8 (846) 000-00-##", "ООО «{s}»"},
    {"slovakia", nullptr,
     "Košice|040 ##|48.72|21.26|;Žilina|010 ##|49.22|18.74|;Nitra|949 ##|48.31|18.09|;Prešov|080 "
     "##|49.00|21.24|",
     "Lipová;Hlavná;Kvetná;Záhradná", streetFirst, "055/000 00 ##;041/000 00 ##;037/000 00 ##;051/000 00 ##",
     "{s} s.r.o."},
    {"slovenia", nullptr,
     "Ljubljana|10##|46.06|14.51|;Maribor|20##|46.56|15.65|;Celje|30##|46.23|15.26|;Koper|60##|45.55|13.73|",
     "Lipova ulica;Glavni trg;Poljska pot;Vrtna ulica", streetFirst,
     "01 000 00 ##;02 000 00 ##;03 000 00 ##;05 000 00 ##", "{s} d.o.o."},
    {"cyrillic-serbia", nullptr,
     "Београд|110##|44.82|20.46|;Ниш|180##|43.32|21.90|;Суботица|240##|46.10|19.67|;Чачак|320##|43.89|20.35|",
     "Липова;Дунавска;Његошева;Цвећарска", streetFirst, "011 000 00##;018 000 0##;024 000 0##;032 000 0##",
     "{s} ДОО"},
    {"latin-serbia", nullptr,
     "Beograd|110##|44.82|20.46|;Niš|180##|43.32|21.90|;Subotica|240##|46.10|19.67|;Čačak|320##|43.89|20.35|",
     "Lipova;Dunavska;Njegoševa;Cvećarska", streetFirst, "011 000 00##;018 000 0##;024 000 0##;032 000 0##",
     "{s} DOO"},
    {"serbia", nullptr,
     "Нови "
     "Сад|210##|45.25|19.84|;Крагујевац|340##|44.01|20.91|;Ваљево|140##|44.27|19.89|;Зрењанин|230##|45.38|20."
     "39|",
     "Виноградска;Железничка;Јабланска;Пролећна", streetFirst,
     "021 000 0##;034 000 0##;014 000 0##;023 000 0##", "{s} ДОО"},
    {"sweden", nullptr,
     "Stockholm|11# ##|59.33|18.07|;Göteborg|41# ##|57.71|11.97|;Malmö|21# ##|55.60|13.00|;Kiruna|98# "
     "##|67.86|20.23|",
     "Björkvägen;Hamngatan;Kyrkogatan;Ängsvägen", streetFirst,
     "08-465 004 ##;031-390 06 ##;040-628 04 ##;0980-319 2##", "{s} AB"},
    {"turkey", nullptr,
     "İzmir|350##|38.42|27.14|;Bursa|160##|40.18|29.06|;Trabzon|610##|41.00|39.72|;Antalya|070##|36.90|30."
     "70|",
     "Çınar Sokak;Gül Sokak;Lale Caddesi;Zeytin Sokak", "{street} No: {n}/{zip} {city}",
     "(0232) 000 00 ##;(0224) 000 00 ##;(0462) 000 00 ##;(0242) 000 00 ##", "{s} A.Ş."},
    {"ukraine", nullptr,
     "Київ|010##|50.45|30.52|;Львів|790##|49.84|24.03|;Одеса|650##|46.48|30.72|;Полтава|360##|49.59|34.55|",
     "вул. Калинова;вул. Лугова;вул. Садова;вул. Яблунева", "{street}, {n}/м. {city}/{zip}",
     "(044) 000-00-##;(032) 000-00-##;(048) 000-00-##;(0532) 00-00-##", "ТОВ «{s}»"},
    {"vietnam", nullptr,
     "Hà Nội|100##0|21.03|105.85|;Đà Nẵng|550##0|16.06|108.22|;Huế|530##0|16.46|107.59|;Cần "
     "Thơ|940##0|10.03|105.78|",
     "đường Hoa Sen;đường Lê Lợi;đường Trần Phú;đường Cây Đa", "{n} {street}/{city} {zip}",
     "024 0000 00##;0236 000 00##;0234 000 00##;0292 000 00##", "Công ty TNHH {s}"},
    {"china", nullptr,
     "杭州市|3100##|30.27|120.16|浙江省;成都市|6100##|30.57|104.07|四川省;青岛市|2660##|36.07|120.38|山东省;"
     "昆明市|6500##|25.04|102.71|云南省",
     "桂花路;人民路;柳树街;长江路", "{region}{city}{street}{n}号/{zip}",
     "0571-000000##;028-000000##;0532-000000##;0871-000000##", "{s}氏贸易有限公司"},
    {"taiwan", nullptr,
     "台南市|700|22.99|120.20|;台中市|400|24.14|120.68|;花蓮縣|970|23.99|121.60|;新竹市|300|24.80|120.97|",
     "中山路;民生路;和平街;光復路", "{zip}/{city}{street}{n}號",
     "(06) 000-00##;(04) 0000-00##;(03) 000-00##;(03) 000-01##", "{s}記股份有限公司"},
};

} // namespace

const PlaceRow *placeRow(const QString &country, const QString &nameSet) {
    for (const PlaceRow &row : rows) {
        const bool fits = !row.nameSet || nameSet == QLatin1String(row.nameSet);
        if (fits && country == QLatin1String(row.country)) return &row;
    }
    return nullptr;
}

} // namespace orl::demo
