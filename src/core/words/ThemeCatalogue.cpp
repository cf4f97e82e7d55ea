// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/ThemeCatalogue.h"

#include "words/OwnThemes.h"

#include <array>

namespace quillora {

namespace {

// Index 0 is the "no theme" entry shown while a random theme is being played.
constexpr std::array<std::string_view, ThemeCatalogue::kThemes + 1> kThemeNames{
    "????",
    "ANIMAL",
    "ASTRONOMÍA",
    "BIOLOGÍA",
    "CARICATURA VIEJA",
    "COMIDA MEXICANA",
    "CUENTO O FÁBULA",
    "DEPORTE",
    "DINOSAURIO",
    "ECOLOGIA",
    "ECONOMIA",
    "ELECTRODOMÉSTICO",
    "ELEMENTO DE UN ORDENADOR",
    "EMPRESA CONOCIDA",
    "ENTRETENIMIENTO",
    "ESCUELA U OBJETO DE S/CLASES",
    "ESTADO MEXICANO",
    "FÍSICA",
    "FLOR",
    "FOBIA",
    "FRUTA",
    "INGREDIENTE DE COCINA",
    "GÉNERO DE MÚSICA",
    "GÉNERO DE PELÍCULA",
    "GEOGRAFÍA",
    "GRAMÁTICA",
    "INSECTO",
    "INSTRUMENTO MUSICAL",
    "INTERNET",
    "INVENTO IMPORTANTE (1)",
    "INVENTO IMPORTANTE (2)",
    "JUEGO DE MESA",
    "LUGAR O EDIFICIO",
    "MANEJO DE LA COMPUTADORA",
    "MATEMÁTICAS",
    "MEDIO DE COMUNICACIÓN",
    "MEDIO DE TRANSPORTE",
    "OCEANO",
    "ORGANO DEL CUERPO",
    "PAÍS DEL MUNDO",
    "PARTE DE UNA CASA",
    "PARTE DEL CUERPO (1)",
    "PARTE DEL CUERPO (2)",
    "PELÍCULA",
    "PERSONAJE DE VIDEOJUEGO",
    "PLANTA",
    "PROFESIÓN",
    "QUÍMICA",
    "ROPA O ACCESORIO",
    "TIPO DE ENERGÍA",
    "VEGETAL",
};

// Entry t - 1 holds the phrases of theme t. The runs of blanks inside a phrase are
// part of it: they push the next word to the start of the board's next 14-cell
// row, so the board can lay the text cell by cell without ever splitting a word.
// Four phrases break a row earlier than they need to ("LOS PICAPIEDRA", "EL
// PAJARO LOCO", "GARFIELD Y SUS AMIGOS", "LA GALLINA DE LOS HUEVOS DE ORO");
// that is how they have always looked on the board, so they stay.
using PhraseRow = std::array<std::string_view, ThemeCatalogue::kPhrasesPerTheme>;
constexpr std::array<PhraseRow, ThemeCatalogue::kThemes> kPhrases{{
    // 1: ANIMAL
    {"GALLINA", "VACA",  "PUERCO",    "PEZ",     "PERRO", "GATO",  "RATON",
     "LAGARTO", "PANDA", "SERPIENTE", "SIMIO",   "CHIVO", "LEON",  "TIGRE",
     "JIRAFA",  "LOBO",  "ELEFANTE",  "BALLENA", "OSO",   "CIERVO"},
    // 2: ASTRONOMÍA
    {"MERCURIO", "VENUS",      "TIERRA",   "MARTE",  "JUPITER",      "SATURNO",   "URANO",
     "NEPTUNO",  "METEOROIDE", "ESTRELLA", "COMETA", "GALAXIA",      "ASTEROIDE", "AGUJERO NEGRO",
     "NEBULOSA", "VIA LACTEA", "PLANETA",  "SOL",    "CONSTELACION", "ORBITA"},
    // 3: BIOLOGÍA
    {"BIOQUIMICA",
     "CELULA",
     "CODIGO        GENETICO",
     "VIDA",
     "EVOLUCION",
     "SINTESIS      MODERNA",
     "DERIVA        GENETICA",
     "CROMOSOMA",
     "GEN",
     "FILOGENIA",
     "PROTEINA",
     "HOMEOSTASIS",
     "PH",
     "FISIOLOGIA",
     "ANATOMIA",
     "REPRODUCCION",
     "METABOLISMO",
     "MUTACION",
     "TAXONOMIA",
     "SISTEMATICA"},
    // 4: CARICATURA VIEJA
    {"LA PANTERA    ROSA",
     "THUNDERCATS",
     "LOS           PICAPIEDRA",
     "DON GATO Y SU PANDILLA",
     "TOM Y JERRY",
     "LOONEY TUNES",
     "CANDY CANDY",
     "LOS PITUFOS",
     "POPEYE",
     "PINKY Y       CEREBRO",
     "HEIDI",
     "SCOOBY DOO",
     "LOS           SUPERSONICOS",
     "ANIMANIACS",
     "ALVIN Y LAS   ARDILLAS",
     "EL PAJARO     LOCO",
     "GARFIELD Y    SUS AMIGOS",
     "RUGRATS",
     "HEMAN",
     "TORTUGAS      NINJAS"},
    // 5: COMIDA MEXICANA
    {"CHALUPAS",
     "CHILES EN     NOGADA",
     "HUEVOS        MOTULEÑOS",
     "COCHINITA     PIBIL",
     "CALDO DE      CAMARON",
     "CHILPACHOLE",
     "SOPA DE HONGOS",
     "SOPA DE FLOR  DE CALABAZA",
     "CALDO TLALPEÑO",
     "CHONGOS       ZAMORANOS",
     "CORUNDAS",
     "CEVICHE",
     "POZOLE VERDE",
     "BARBACOA",
     "TORTAS        AHOGADAS",
     "BIRRIA",
     "MENUDO",
     "TACOS",
     "POZOLE ROJO",
     "QUESADILLAS"},
    // 6: CUENTO O FÁBULA
    {"ALADINO",
     "PETER PAN",
     "BAMBI",
     "BLANCANIEVES",
     "CAPERUCITA    ROJA",
     "EL GATO CON   BOTAS",
     "EL LOBO Y LOS 7 CABRITOS",
     "EL NIÑO Y EL  LOBO",
     "LA BELLA      DURMIENTE",
     "LA CENICIENTA",
     "LA CIGARRA Y  LA HORMIGA",
     "LOS 3 CERDITOS",
     "PINOCHO",
     "PULGARCITO",
     "LA SIRENITA",
     "LA BELLA Y LA BESTIA",
     "EL FLAUTISTA  DE HAMELIN",
     "LA TORTUGA Y  LA LIEBRE",
     "LA GALLINA    DE LOS HUEVOS DE ORO",
     "HANSEL Y      GRETEL"},
    // 7: DEPORTE
    {"ATLETISMO", "ESQUI", "BALONCESTO",    "SURF",    "BEISBOL",  "BOXEO",    "CICLISMO",
     "NATACION",  "RUGBY", "EQUITACION",    "ESGRIMA", "FUTBOL",   "GIMNASIA", "HOCKEY",
     "REMO",      "TENIS", "TIRO CON ARCO", "GOLF",    "VOLEIBOL", "KARATE"},
    // 8: DINOSAURIO
    {"VELOCIRAPTOR",      "ALOSAURIO",      "TIRANOSAURIO", "BRANQUIOSAURIO", "ESPINOSAURIO",
     "APATOSAURIO",       "ANQUILOSAURIO",  "ESTEGOSAURIO", "TRICERATOPS",    "PARASAUROLOFUS",
     "PAQUICEFALOSAURIO", "ESTIRACOSAURIO", "IGUANODONTE",  "CORITOSAURIO",   "ARQUEOPTERIX",
     "GALLIMIMO",         "LAMBEOSAURIO",   "MAIASAURIA",   "PROTOCERATOPS",  "PTERODACTILO"},
    // 9: ECOLOGIA
    {"HABITAT",     "BIOSFERA",    "SERES VIVOS", "BIODIVERSIDAD",  "ECOSISTEMA",
     "COMUNIDAD",   "POBLACION",   "ORGANISMO",   "CADENA TROFICA", "AUTOTROFO",
     "HETEROTROFO", "DETRITIVORO", "BIOMASA",     "OZONO",          "FOTOSINTESIS",
     "HERBIVORO",   "OMNIVORO",    "CARNIVORO",   "BIOMA",          "ECOZONA"},
    // 10: ECONOMIA
    {"CONTRACCION   ECONOMICA",
     "PRODUCCION",
     "INTERCAMBIO",
     "CANAL DE      DISTRIBUCION",
     "BIEN ECONOMICO",
     "SOCIEDAD DE   CONSUMO",
     "SALARIO",
     "TASA DE       INFLACION",
     "EFICIENCIA",
     "GASTO PUBLICO",
     "IMPUESTO",
     "DESEMPLEO",
     "BALANZA DE    PAGOS",
     "DINERO",
     "RECURSO",
     "TASA DE CAMBIO",
     "TASA DE       INTERES",
     "MICROECONOMIA",
     "MACROECONOMIA",
     "PRODUCTO BRUTO"},
    // 11: ELECTRODOMÉSTICO
    {"TELEVISION",
     "REPRODUCTOR DE AUDIO",
     "REPRODUCTOR DE VIDEO",
     "TELEFONO",
     "CAFETERA",
     "COMPUTADORA   PERSONAL",
     "MICROONDAS",
     "ESTUFA",
     "HORNO",
     "LAVADORA",
     "REFRIGERADOR",
     "SECADORA",
     "CALEFACTOR",
     "MAQUINA DE    COSER",
     "CALENTADOR",
     "LICUADORA",
     "TOSTADORA",
     "EXTRACTOR DE  JUGO",
     "PLANCHA",
     "ASPIRADORA"},
    // 12: ELEMENTO DE UN ORDENADOR
    {"TECLADO",
     "IMPRESORA",
     "MOUSE",
     "MONITOR",
     "UNIDAD DE     ALMACENAMIENTO",
     "FUENTE DE     PODER",
     "MEMORIA ROM",
     "MEMORIA CACHE",
     "CPU",
     "MEMORIA RAM",
     "SOFTWARE",
     "ALTAVOCES",
     "TARJETA DE    VIDEO",
     "TARJETA DE    SONIDO",
     "PLACA BASE",
     "PROCESADOR",
     "CD ROM",
     "PUERTOS",
     "VENTILADOR",
     "MODEM"},
    // 13: EMPRESA CONOCIDA
    {"COCA COLA", "MICROSOFT",
     "IBM",       "GOOGLE",
     "NOKIA",     "APPLE",
     "INTEL",     "MCDONALDS",
     "DISNEY",    "SONY",
     "NINTENDO",  "DELL",
     "BIMBO",     "GENERAL       ELECTRICS",
     "KELLOGGS",  "NIKE",
     "FACEBOOK",  "HEWLETT       PACKARD",
     "SAMSUNG",   "PEPSI"},
    // 14: ENTRETENIMIENTO
    {"VIDEOJUEGO", "MUSICA", "VIDEO",  "PELICULA",   "JUGUETE",    "LECTURA",   "INTERNET",
     "DEPORTE",    "JUEGO",  "HUMOR",  "ILUSION",    "AZAR",       "ANIMACION", "ARTE",
     "CHAT",       "DANZA",  "TEATRO", "PASATIEMPO", "TECNOLOGIA", "FOTOGRAFIA"},
    // 15: ESCUELA U OBJETO DE S/CLASES
    {"AULA",     "MAESTRO",   "BUTACA",   "PINTARRON",  "ALUMNO",   "MARCADOR",    "LIBRO",
     "UTILES",   "MOCHILA",   "BORRADOR", "ASIGNATURA", "DIRECTOR", "SUBDIRECTOR", "PATIO",
     "CONSERJE", "DIRECCION", "BAÑO",     "AUDITORIO",  "CANCHA",   "BASURERO"},
    // 16: ESTADO MEXICANO
    {"DISTRITO      FEDERAL",
     "BAJA          CALIFORNIA",
     "CAMPECHE",
     "CHIHUAHUA",
     "COLIMA",
     "GUANAJUATO",
     "GUERRERO",
     "JALISCO",
     "MORELOS",
     "NAYARIT",
     "OAXACA",
     "PUEBLA",
     "QUERETARO",
     "SINALOA",
     "SONORA",
     "TABASCO",
     "TAMAULIPAS",
     "YUCATAN",
     "QUINTANA ROO",
     "ZACATECAS"},
    // 17: FÍSICA
    {"ENERGIA",
     "MATERIA",
     "TIEMPO",
     "ESPACIO",
     "MECANICA      CLASICA",
     "ELECTROMAGNETISMO",
     "RELATIVIDAD",
     "TERMODINAMICA",
     "MECANICA      ESTADISTICA",
     "MECANICA      CUANTICA",
     "NEWTON",
     "FISICA TEORICA",
     "MATERIA       CONDENSADA",
     "FISICA ATOMICA Y MOLECULAR",
     "ASTROFISICA",
     "BIOFISICA",
     "ELECTRONICA",
     "ATOMO",
     "JOULE",
     "PASCAL"},
    // 18: FLOR
    {"MARGARITA", "ORQUIDEA", "BEGONIA", "GERANIO",  "ROSAL",   "CAMELIA",  "CEMPAZUCHIL",
     "VIOLETA",   "PETUNIA",  "JAZMIN",  "GARDENIA", "TULIPAN", "MAGNOLIA", "GAZANIA",
     "AZAFRAN",   "CRESPON",  "CLAVEL",  "LANTANA",  "GIRASOL", "LIRIO"},
    // 19: FOBIA
    {"ACROFOBIA",  "AGORAFOBIA",   "AILUROFOBIA",   "ALGOFOBIA",   "ANDROFOBIA",
     "ANTOFOBIA",  "ANTROPOFOBIA", "ARACNOFOBIA",   "ASTROFOBIA",  "BALISTOFOBIA",
     "BAROFOBIA",  "CLINOFOBIA",   "DENDROFOBIA",   "FOBOFOBIA",   "GINEFOBIA",
     "PEDIOFOBIA", "TRICOFOBIA",   "CLAUSTROFOBIA", "COULROFOBIA", "TECNOFOBIA"},
    // 20: FRUTA
    {"MANZANA", "PAPAYA", "PLATANO", "FRESA", "ZARZAMORA", "PERA",     "TAMARINDO",
     "MANGO",   "COCO",   "DURAZNO", "MELON", "NARANJA",   "TORONJA",  "UVA",
     "GUAYABA", "KIWI",   "LIMON",   "LIMA",  "PIÑA",      "MANDARINA"},
    // 21: INGREDIENTE DE COCINA
    {"ACEITE",   "CREMA",     "YOGUR", "LECHE",   "QUESO",       "HONGO",  "LEGUMBRE",
     "PIMIENTA", "TUBERCULO", "AGUA",  "VEGETAL", "FRUTA",       "CARNE",  "HARINA",
     "ARROZ",    "PASTA",     "PAN",   "MARISCO", "MANTEQUILLA", "PESCADO"},
    // 22: GÉNERO DE MÚSICA
    {"BLUES",  "CLASICA",   "COUNTRY", "ELECTRONICA", "FUNK",         "JAZZ",  "PUNK",
     "RAP",    "REGGAETON", "ROCK",    "POP",         "BANDA SONORA", "DANZA", "SAMBA",
     "GRUNGE", "FOLK",      "GOSPEL",  "LATINA",      "HEAVY METAL",  "OPERA"},
    // 23: GÉNERO DE PELÍCULA
    {"DRAMA",        "COMEDIA",    "ACCION",    "AVENTURA",   "TERROR",    "CIENCIA       FICCION",
     "ROMANTICO",    "MUSICAL",    "MELODRAMA", "CATASTROFE", "SUSPENSO",  "FANTASIA",
     "PORNOGRAFICO", "HISTORICO",  "POLICIACO", "BELICO",     "DEL OESTE", "DEPORTIVO",
     "ANIMACION",    "IMAGEN REAL"},
    // 24: GEOGRAFÍA
    {"SOCIEDAD",     "TERRITORIO", "PAISAJE",     "LUGAR",     "REGION",
     "TIERRA",       "MONTAÑA",    "OCEANO",      "CLIMA",     "SISMO",
     "RELIEVE",      "VEGETACION", "CARTOGRAFIA", "GEOMATICA", "MEDIO AMBIENTE",
     "NEOGEOGRAFIA", "ECOLOGIA",   "VOLCAN",      "FOSIL",     "GENTE"},
    // 25: GRAMÁTICA
    {"ADJETIVO", "ADVERBIO", "ARTICULO",   "CONJUGACION", "CONJUNCION",  "GERUNDIO",  "NEGACION",
     "NUMERO",   "ORACION",  "PLURAL",     "PREDICADO",   "PREPOSICION", "PRONOMBRE", "SINGULAR",
     "SINTAXIS", "SUJETO",   "SUSTANTIVO", "VERBO",       "GENERO",      "FLEXION"},
    // 26: INSECTO
    {"HORMIGA",   "MOSCA",   "ABEJA",   "GORGOJO",    "LOMBRIZ",     "ESCARABAJO", "MARIPOSA",
     "CUCARACHA", "POLILLA", "CIGARRA", "LIBELULA",   "GRILLO",      "CHINCHE",    "TERMITA",
     "AVISPA",    "PULGA",   "MANTIS",  "LUCIERNAGA", "SALTAMONTES", "PIOJO"},
    // 27: INSTRUMENTO MUSICAL
    {"ACORDEON",
     "GUITARRA      ACUSTICA",
     "GUITARRA      ELECTRICA",
     "BANJO",
     "BAJO",
     "VIOLONCHELO",
     "ARPA",
     "TECLADO",
     "PIANO",
     "TROMPETA",
     "CLARINETE",
     "TAMBOR",
     "BATERIA",
     "FLAUTA",
     "ARMONICA",
     "MANDOLINA",
     "TROMBON",
     "VIOLIN",
     "SAXOFON",
     "XILOFONO"},
    // 28: INTERNET
    {"RED",
     "NAVEGADOR WEB",
     "WEB",
     "PAGINA WEB",
     "CONEXION",
     "PROTOCOLO",
     "ARPANET",
     "WORLD WIDE WEB",
     "HIPERTEXTO",
     "CORREO        ELECTRONICO",
     "CHAT",
     "BUSCADOR",
     "SITIO WEB",
     "USUARIO",
     "CUENTA DE     USUARIO",
     "MODEM",
     "TELEFONO",
     "COMPUTADORA",
     "WIFI",
     "DOMINIO"},
    // 29: INVENTO IMPORTANTE (1)
    {"RUEDA",
     "REGLA",
     "BALANZA",
     "TERMOMETRO",
     "PLUMA",
     "TINTA",
     "LAMPARA",
     "BOMBILLA",
     "RELOJ",
     "BRUJULA",
     "PALANCA",
     "POLEA",
     "IMPRENTA",
     "TEXTIL",
     "LENTE",
     "TELESCOPIO",
     "CALCULADORA",
     "ABANICO",
     "MAQUINA DE    VAPOR",
     "REFRIGERADOR"},
    // 30: INVENTO IMPORTANTE (2)
    {"BATERIA",
     "CIRCUITO",
     "FOTOGRAFIA",
     "CINE",
     "APARATOS      MEDICOS",
     "ANESTESIA",
     "RADIO",
     "TELEFONO",
     "TELEVISION",
     "GRABACION",
     "MOTOR DE      COMBUSTION    INTERNA",
     "CHIP DE       SILICIO",
     "AVION",
     "BARCO",
     "BICICLETA",
     "PAPEL",
     "PLASTICO",
     "INTERNET",
     "ENVASADO",
     "COMPUTADORA"},
    // 31: JUEGO DE MESA
    {"MONOPOLIO",  "DAMAS",        "AJEDREZ",       "SCRABBLE",
     "BOGGLE",     "JENGA",        "ADIVINA QUIEN", "PALILLOS      CHINOS",
     "PICTIONARY", "UNO",          "BINGO",         "SERPIENTES Y  ESCALERAS",
     "CLUE",       "BACKGAMMON",   "BATALLA NAVAL", "JUEGO DE LA   OCA",
     "BLACK JACK", "DAMAS CHINAS", "POKER",         "DOMINO"},
    // 32: LUGAR O EDIFICIO
    {"ESCUELA",    "HOSPITAL", "COMISARIA",   "FARMACIA",   "MERCADO", "ESTACION DE   BOMBEROS",
     "BANCO",      "PARQUE",   "ZOOLOGICO",   "GASOLINERA", "IGLESIA", "PANADERIA",
     "CARNICERIA", "CINE",     "RESTAURANTE", "CEMENTERIO", "CARCEL",  "OFICINA POSTAL",
     "CATEDRAL",   "BAR"},
    // 33: MANEJO DE LA COMPUTADORA
    {"CLIC",    "VENTANA",     "CLIC IZQUIERDO", "PANEL",  "ESCRITORIO", "EJECUTAR", "PROGRAMA",
     "RUTA",    "PAPELERA",    "CARPETA",        "ICONO",  "INTERNET",   "IMPRIMIR", "PUNTERO",
     "MEMORIA", "COMPUTADORA", "RELOJ",          "UNIDAD", "CONTROL",    "MENU"},
    // 34: MATEMÁTICAS
    {"PROBABILIDAD",
     "ANGULOS",
     "AREA",
     "BASE Y ALTURA",
     "MEDIA Y MODA",
     "MEDIANA",
     "SENO Y COSENO",
     "TANGENTE",
     "PERIMETRO",
     "RAIZ Y        POTENCIA",
     "RADIO Y       DIAMETRO",
     "ALGEBRA Y     ARITMETICA",
     "HIPOTENUSA",
     "NUMEROS Y     FRACCIONES",
     "COORDENADAS",
     "ECUACIONES",
     "SUMA Y RESTA",
     "ABSCISA Y     ORDENADA",
     "PRODUCTO",
     "DIVISION"},
    // 35: MEDIO DE COMUNICACIÓN
    {"SIGNO",      "SEÑAL",     "PERIODICO", "HISTORIETA", "TELEFONO FIJO",  "RADIO", "CINE",
     "TELEVISION", "INTERNET",  "TELEGRAFO", "REVISTA",    "PUBLICIDAD",     "FAX",   "LENGUA",
     "CARTA",      "PERGAMINO", "LIBRO",     "MORSE",      "TELEFONO MOVIL", "ARTE"},
    // 36: MEDIO DE TRANSPORTE
    {"AVION",
     "AVIONETA",
     "COHETE",
     "HELICOPTERO",
     "PLANEADOR",
     "TREN",
     "METRO",
     "MONORRIEL",
     "TRANVIA",
     "FUNICULAR",
     "AUTOBUS",
     "AUTOMOVIL",
     "BICICLETA",
     "CAMION",
     "ESCALERA      ELECTRICA",
     "MOTOCICLETA",
     "SILLA DE      RUEDAS",
     "TROLEBUS",
     "BARCO",
     "SUBMARINO"},
    // 37: OCEANO
    {"AGUA",
     "ANTARTICO",
     "ATLANTICO",
     "ARTICO",
     "INDICO",
     "PACIFICO",
     "RELIEVE",
     "FOSA",
     "ARRECIFE",
     "OLA",
     "TSUNAMI",
     "MAREA",
     "MAR",
     "PLAYA",
     "FAUNA MARINA",
     "FLORA MARINA",
     "VOLCAN        SUBMARINO",
     "ISLA",
     "MAREMOTO",
     "DORSAL        OCEANICA"},
    // 38: ORGANO DEL CUERPO
    {"ESTOMAGO",  "HIGADO",   "PULMON",  "CORAZON", "BAZO",      "TIMO",    "PANCREAS",
     "RIÑON",     "VEJIGA",   "CEREBRO", "LENGUA",  "HUESO",     "MUSCULO", "PIEL",
     "TESTICULO", "PROSTATA", "OVARIO",  "UTERO",   "INTESTINO", "PENE"},
    // 39: PAÍS DEL MUNDO
    {"ESTADOS UNIDOS", "MEXICO",    "COLOMBIA", "ARGENTINA",  "BRASIL",
     "DINAMARCA",      "FRANCIA",   "ITALIA",   "INGLATERRA", "AUSTRIA",
     "RUSIA",          "JAPON",     "CHINA",    "INDIA",      "ISRAEL",
     "EGIPTO",         "MARRUECOS", "NIGERIA",  "AUSTRALIA",  "NUEVA ZELANDA"},
    // 40: PARTE DE UNA CASA
    {"HABITACION", "DORMITORIO", "CUARTO DE BAÑO", "COCINA",   "COMEDOR", "VESTIBULO", "ESCALERA",
     "PASILLO",    "GARAJE",     "DESPACHO",       "LAVADERO", "BODEGA",  "TERRAZA",   "PATIO",
     "ESTUDIO",    "BIBLIOTECA", "TENDEDERO",      "DESVAN",   "AZOTEA",  "SOTANO"},
    // 41: PARTE DEL CUERPO (1)
    {"AXILA", "CARA",    "CUELLO", "ESPALDA", "FOSA NASAL", "GARGANTA", "HOMBRO",
     "INGLE", "ABDOMEN", "MANO",   "NALGA",   "NARIZ",      "CINTURA",  "UÑA",
     "PECHO", "DEDO",    "SIEN",   "NUCA",    "COLON",      "TRONCO"},
    // 42: PARTE DEL CUERPO (2)
    {"CADERA",   "VELLO",  "CABELLO", "OJO",         "ANTEBRAZO", "BRAZO",     "CODO",
     "PIE",      "PIERNA", "MUSLO",   "PANTORRILLA", "PUÑO",      "RODILLA",   "TOBILLO",
     "BARBILLA", "LABIO",  "MEJILLA", "TORAX",       "CABEZA",    "EXTREMIDAD"},
    // 43: PELÍCULA
    {"TITANIC",
     "EL SEÑOR DE   LOS ANILLOS",
     "PIRATAS DEL   CARIBE",
     "LA ERA DE     HIELO",
     "EL REY LEON",
     "BATMAN",
     "FORREST GUMP",
     "HARRY POTTER",
     "STAR WARS",
     "PARQUE        JURASICO",
     "MONSTERS INC",
     "BUSCANDO A    NEMO",
     "ET",
     "EL SEXTO      SENTIDO",
     "EL HOMBRE     ARAÑA",
     "INDIANA JONES",
     "MATRIX",
     "TIBURON",
     "LOS HOMBRES DE NEGRO",
     "TOY STORY"},
    // 44: PERSONAJE DE VIDEOJUEGO
    {"MARIO",  "LINK",          "MASTER CHIEF", "SOLID SNAKE",  "CLOUD STRIFE",
     "PACMAN", "LARA CROFT",    "GORDON",       "KRATOS",       "SONIC",
     "CRASH",  "MACTAVISH",     "NIKO BELLIC",  "SAMUS ARAN",   "RATCHET",
     "DRAKE",  "CAPTAIN PRICE", "KIRBY",        "MARCUS FENIX", "PIKACHU"},
    // 45: PLANTA
    {"ALAMO",   "ROBLE",  "CEDRO",    "ENCINA",         "FRESNO",  "PINO",   "ABETO",
     "PALMERA", "SAUCE",  "CANNABIS", "DIENTE DE LEON", "NARANJO", "CEREZO", "ALGA",
     "CACTUS",  "CIPRES", "TREBOL",   "HELECHO",        "HIEDRA",  "SAUCE"},
    // 46: PROFESIÓN
    {"MATEMATICAS",
     "MECATRONICA",
     "MERCADOTECNIA",
     "FISICA",
     "QUIMICA",
     "COMPUTACION",
     "TURISMO",
     "GASTRONOMIA",
     "VETERINARIA",
     "ARQUITECTURA",
     "DISEÑO GRAFICO",
     "INGENIERIA",
     "CONTABILIDAD",
     "DERECHO",
     "PSICOLOGIA",
     "ECONOMIA",
     "MEDICINA",
     "PERIODISMO",
     "LENGUAS       MODERNAS",
     "ENSEÑANZA"},
    // 47: QUÍMICA
    {"COMPOSICION",
     "ESTRUCTURA",
     "MATERIA",
     "REACCION",
     "ENERGIA",
     "BIOQUIMICA",
     "ELECTRON",
     "PROTON",
     "NEUTRON",
     "PARTICULA",
     "EXOTERMICO",
     "ENDOTERMICO",
     "CONCENTRACION",
     "DISOLUCION",
     "ATOMO",
     "ACIDEZ",
     "NOMENCLATURA",
     "MASA MOLAR",
     "CARGA         ELECTRICA",
     "ISOTOPO"},
    // 48: ROPA O ACCESORIO
    {"CAMISA",   "PLAYERA", "BLUSA",  "PANTALON", "PANS",     "FALDA",   "VESTIDO",
     "SHORT",    "SUETER",  "ABRIGO", "CALCETIN", "CINTURON", "BRASIER", "ZAPATO",
     "SANDALIA", "GORRA",   "BOXER",  "BUFANDA",  "GUANTE",   "SACO"},
    // 49: TIPO DE ENERGÍA
    {"MECANICA",  "CINETICA",    "POTENCIAL",  "ELECTROMAGNETICA", "CALORICA",
     "ELECTRICA", "INTERNA",     "TERMICA",    "COSMICA",          "CORPORAL",
     "QUIMICA",   "HIDRAULICA",  "GEOTERMICA", "NUCLEAR",          "SOLAR",
     "EOLICA",    "MAREOMOTRIZ", "RENOVABLE",  "NO RENOVABLE",     "MAGNETICA"},
    // 50: VEGETAL
    {"ACELGA",
     "ALCACHOFA",
     "APIO",
     "BERRO",
     "CALABACITA",
     "CEBOLLA",
     "CHAYOTE",
     "CHICHARO",
     "CHILE",
     "CILANTRO",
     "FLOR DE       CALABAZA",
     "COL",
     "ELOTE",
     "ESPARRAGO",
     "JITOMATE",
     "NABO",
     "NOPAL",
     "LECHUGA",
     "RABANO",
     "ZANAHORIA"},
}};

bool hasTheme(int theme) {
    return theme >= 1 && theme <= ThemeCatalogue::kThemes;
}

bool hasPhraseIndex(int index) {
    return index >= 1 && index <= ThemeCatalogue::kPhrasesPerTheme;
}

// A lookup outside the tables is the caller's slip; answering an empty text is
// kinder than reading past an array.
const std::string& emptyText() {
    static const std::string empty;
    return empty;
}

} // namespace

int ThemeCatalogue::ownCount() const {
    return m_own ? static_cast<int>(m_own->size()) : 0;
}

const OwnTheme* ThemeCatalogue::own(int theme) const {
    const int index = theme - kThemes - 1;
    return index >= 0 && index < ownCount() ? &(*m_own)[static_cast<std::size_t>(index)] : nullptr;
}

void ThemeCatalogue::initDrawRanges() {
    m_phraseDrawRange = 2 * kPhrasesPerTheme;
    m_themeDrawRange = 2 * (kThemes + ownCount());
    m_themeCount = m_themeDrawRange / 2;
}

int ThemeCatalogue::phraseDrawRange(int theme) const {
    const OwnTheme* ownTheme = own(theme);
    return ownTheme ? 2 * static_cast<int>(ownTheme->phrases.size()) : m_phraseDrawRange;
}

void ThemeCatalogue::loadThemeNames() {
    m_themeNames.resize(static_cast<std::size_t>(kThemes + ownCount() + 1));
    for (int theme = 0; theme <= kThemes; ++theme)
        m_themeNames[theme] = kThemeNames[theme];
    for (int index = 0; index < ownCount(); ++index)
        m_themeNames[kThemes + 1 + index] = (*m_own)[index].name;
}

void ThemeCatalogue::loadPhrases(int theme) {
    if (const OwnTheme* ownTheme = own(theme)) {
        m_phrases.assign(1, std::string());
        m_phrases.insert(m_phrases.end(), ownTheme->phrases.begin(), ownTheme->phrases.end());
        return;
    }
    if (!hasTheme(theme))
        return;
    m_phrases.resize(kPhrasesPerTheme + 1);
    for (int index = 1; index <= kPhrasesPerTheme; ++index)
        m_phrases[index] = kPhrases[theme - 1][index - 1];
}

const std::string& ThemeCatalogue::themeName(int theme) const {
    if (theme < 0 || theme >= static_cast<int>(m_themeNames.size()))
        return emptyText();
    return m_themeNames[theme];
}

const std::string& ThemeCatalogue::phrase(int index) const {
    if (index < 1 || index >= static_cast<int>(m_phrases.size()))
        return emptyText();
    return m_phrases[index];
}

std::string_view ThemeCatalogue::storedThemeName(int theme) {
    if (theme < 0 || theme > kThemes)
        return {};
    return kThemeNames[theme];
}

std::string_view ThemeCatalogue::storedPhrase(int theme, int index) {
    if (!hasTheme(theme) || !hasPhraseIndex(index))
        return {};
    return kPhrases[theme - 1][index - 1];
}

} // namespace quillora
