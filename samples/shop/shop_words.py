"""The names and texts from which make_shop.py makes the sample database."""

# code, name, region, in the customs union, share of customers, cities, surnames, kinds of company, street form
COUNTRIES = [
    ("DE", "Germany", "Central", 1, 24,
     ["Berlin", "Hamburg", "München", "Köln", "Leipzig", "Nürnberg", "Rostock"],
     ["Müller", "Schröder", "Weiß", "Krüger", "Böhm", "Lindner", "Haas", "Vogt", "Brandt", "Seidel"],
     ["Eisenwaren GmbH", "Garten & Haus KG", "Baumarkt GmbH", "Werkzeughandel", "& Söhne"], "{0} Straße {1}"),
    ("FR", "France", "West", 1, 14,
     ["Paris", "Lyon", "Bordeaux", "Nantes", "Orléans"],
     ["Lefèvre", "Moreau", "Garnier", "Dubois", "Chevalier", "D'Arcy", "Besson"],
     ["Quincaillerie SARL", "& Fils", "Jardinerie", "Bricolage SA"], "{1} rue {0}"),
    ("PL", "Poland", "East", 1, 9,
     ["Kraków", "Warszawa", "Gdańsk", "Łódź", "Wrocław"],
     ["Wójcik", "Kowalska", "Zieliński", "Dąbrowski", "Woźniak", "Żak"],
     ["Hurtownia Sp. z o.o.", "Narzędzia", "Dom i Ogród", "Skład"], "ul. {0} {1}"),
    ("AT", "Austria", "Central", 1, 8,
     ["Vienna", "Graz", "Linz", "Salzburg"],
     ["Gruber", "Steiner", "Pöltl", "Egger", "Hölzl"],
     ["Eisenhof", "Gartencenter", "& Co KG", "Handels GmbH"], "{0}gasse {1}"),
    ("IT", "Italy", "South", 1, 8,
     ["Milano", "Torino", "Bologna", "Verona"],
     ["Ferrero", "Dell'Orto", "Bianchi", "Marchetti", "D'Amico"],
     ["Ferramenta srl", "& Figli", "Casa e Giardino", "Utensili"], "Via {0} {1}"),
    ("NL", "Netherlands", "West", 1, 7,
     ["Amsterdam", "Utrecht", "Rotterdam", "'s-Hertogenbosch"],
     ["de Vries", "van 't Hof", "Bakker", "Jansen", "Smit"],
     ["IJzerhandel BV", "Tuincentrum", "Gereedschap", "& Zonen"], "{0}straat {1}"),
    ("DK", "Denmark", "North", 1, 5,
     ["København", "Aarhus", "Odense"],
     ["Sørensen", "Kjær", "Mølgaard", "Østergaard"],
     ["Isenkram ApS", "Have & Hjem", "Værktøj"], "{0}vej {1}"),
    ("SE", "Sweden", "North", 1, 5,
     ["Stockholm", "Göteborg", "Malmö"],
     ["Åkerlund", "Sjöberg", "Nyström", "Lund"],
     ["Järnhandel AB", "Trädgård AB", "Byggvaror"], "{0}gatan {1}"),
    ("IE", "Ireland", "West", 1, 5,
     ["Dublin", "Cork", "Galway"],
     ["O'Hara", "O'Brien", "Kearney", "Fitzgerald", "O'Shea"],
     ["Hardware Ltd", "& Sons", "Home Stores", "Trading Ltd"], "{1} {0} Street"),
    ("GB", "United Kingdom", "West", 0, 8,
     ["London", "Bristol", "Leeds", "King's Lynn"],
     ["Hartley", "Pemberton", "Ashworth", "McKay", "Winslow"],
     ["Ironmongers Ltd", "& Daughters", "Garden Supplies", "Tool Hire"], "{1} {0} Road"),
    ("CZ", "Czechia", "East", 1, 4,
     ["Praha", "Brno", "Plzeň"],
     ["Dvořák", "Novotná", "Šťastný", "Černý"],
     ["Železářství s.r.o.", "Zahrada", "Nářadí"], "{0} {1}"),
    ("CH", "Switzerland", "Central", 0, 4,
     ["Zürich", "Basel", "Genève"],
     ["Zbinden", "Aebischer", "Rüegg", "Favre"],
     ["Eisenwaren AG", "Haushalt AG", "Gartenbau"], "{0}weg {1}"),
    ("UA", "Ukraine", "East", 0, 2,
     ["Київ", "Львів"],
     ["Шевченко", "Бондар", "Коваль"],
     ["Інструмент", "Дім і Сад"], "вул. {0} {1}"),
    ("JP", "Japan", "Overseas", 0, 3,
     ["東京", "大阪", "Yokohama"],
     ["佐藤", "Suzuki", "高橋", "Tanaka"],
     ["工具店", "Trading KK", "園芸"], "{0} {1}-chōme"),
    ("US", "United States", "Overseas", 0, 2,
     ["Portland", "Boston"],
     ["Whitaker", "Alvarez", "Kowalski"],
     ["Supply Co.", "Hardware Inc."], "{1} {0} Ave"),
]

# company, contact, city, country, segment: customers that the sample queries look for by name
NAMED_CUSTOMERS = [
    ("Hurtownia Żółć", "Łucja Żak", "Kraków", "PL", "W"),
    ("Żółw i Spółka", None, "Gdańsk", "PL", "R"),
    ("Привет Маркет", "Олена Коваль", "Київ", "UA", "R"),
    ("日本工具 株式会社", "佐藤 健", "東京", "JP", "W"),
    ("O'Hara & Daughters", "Maeve O'Hara", "Dublin", "IE", "T"),
    ("GARTENPARADIES BÖHM", "Anke Böhm", "Leipzig", "DE", "R"),
    ("gartenparadies nord", "Ole Brandt", "Rostock", "DE", "R"),
    ("100% Garten", "Mia Seidel", "Berlin", "DE", "R"),
    ("Stadtwerke Leipzig", "Beschaffung", "Leipzig", "DE", "P"),
    ("Mairie de Nantes", None, "Nantes", "FR", "P"),
]

GIVEN_NAMES = ["Anna", "Björn", "Chiara", "David", "Élodie", "Femke", "Grzegorz", "Hanna", "Ivo", "Jürgen", "Kasia",
               "Liam", "Maja", "Niamh", "Oskar", "Paula", "Quentin", "Renée", "Søren", "Tomáš", "Ulla", "Vera",
               "Walter", "Xenia", "Yvonne", "Zoë"]
STREET_NAMES = ["Linden", "Mill", "Harbour", "Garden", "Church", "Station", "River", "Market", "Oak", "Castle"]
CUSTOMER_NOTES = ["Calls before every delivery.", "Wants one invoice a month.", "Pays late, but always pays.",
                  "Ask for Ms O'Brien; don't ring before 9.", "Delivery only with a tail lift.",
                  "Was offered 5% more discount in spring.", "New shop opened, may order more."]
ORDER_REMARKS = ["Leave at the gate.", "Customer's own pallet.", "Deliver with the previous order, please.",
                 "Gift wrap.", "Call the site manager, he's there until 3.", "Fragile!", "Part delivery is fine.",
                 "Invoice by post."]
RETURN_REMARKS = ["Box was open.", "Customer ordered the wrong size.", "Handle broken.", "Arrived after the fair.",
                  "Didn't match the sample.", "Rust on the blade."]

SHIPPERS = [("Rapid Parcel", "+49 30 5550101"), ("North Sea Lines", "+45 33 555012"), ("Alpen Spedition", None),
            ("O'Connor Haulage", "+353 1 5550144")]
WAREHOUSES = ["Hamburg", "Linz", "Lyon", "Gdańsk"]

# first name, last name, job, number of the superior in this list, hired, left, starts work, part time, salary a month
EMPLOYEES = [
    ("Helene", "Hill", "Managing director", None, "2009-03-01", None, "08:00:00", 0, 9800),
    ("Nora", "O'Hara", "Head of sales north", 1, "2012-09-15", None, "07:30:00", 0, 6400),
    ("Matteo", "Dell'Orto", "Head of sales south", 1, "2014-01-07", None, "08:30:00", 0, 6400),
    ("Ingrid", "Sjöberg", "Head of logistics", 1, "2011-05-02", None, "06:30:00", 0, 6100),
    ("Peter", "Lindner", "Sales representative", 2, "2013-04-01", None, "08:00:00", 0, 4200),
    ("Aoife", "Kearney", "Sales representative", 2, "2016-10-01", None, "09:00:00", 1, 3100),
    ("Łukasz", "Wójcik", "Sales representative", 2, "2018-02-12", None, "08:00:00", 0, 4250),
    ("Freja", "Kjær", "Sales representative", 2, "2020-08-01", None, "08:30:00", 0, 3900),
    ("Camille", "Lefèvre", "Sales representative", 3, "2010-06-21", None, "09:00:00", 0, 4650),
    ("Jonas", "Gruber", "Sales representative", 3, "2017-03-06", None, "07:00:00", 0, 4200),
    ("Olena", "Бондар", "Sales representative", 3, "2022-04-19", None, "08:00:00", 0, 3700),
    ("Kenji", "高橋", "Sales representative", 3, "2019-11-04", None, "06:00:00", 1, 3250),
    ("Rosa", "Marchetti", "Sales assistant", 3, "2021-09-01", "2024-06-30", "08:30:00", 1, 2600),
    ("Tom", "Ashworth", "Stock controller", 4, "2015-07-13", None, "06:00:00", 0, 3300),
    ("Eva", "Dvořák", "Dispatcher", 4, "2010-02-08", None, "07:00:00", 0, 4250),
    ("Bram", "van 't Hof", "Buyer", 1, "2018-08-20", None, "08:30:00", 0, 4400),
]
EMPLOYEE_NOTES = {2: "Deputises for Ms Hill.", 7: "Speaks Polish, Ukrainian and Czech.", 12: "Works from Ōsaka."}
SALES_STAFF = [5, 6, 7, 8, 9, 10, 11, 12]

# name, city, country, lead time in days, preferred
SUPPLIERS = [
    ("Solinger Stahl AG", "Solingen", "DE", 12, 1), ("Nordlicht Leuchten", "Odense", "DK", 18, 1),
    ("Outils Besson", "Thiers", "FR", 14, 0), ("Utensileria Bianchi", "Brescia", "IT", 16, 1),
    ("Sjöberg Trä AB", "Växjö", "SE", 21, 0), ("Pemberton & Sons", "Sheffield", "GB", 25, 0),
    ("O'Brien Ropes", "Cork", "IE", 20, 0), ("Lakiernia Zieliński", "Łódź", "PL", 9, 1),
    ("Elektro Egger", "Linz", "AT", 8, 1), ("Textiel Bakker", "Enschede", "NL", 11, 0),
    ("三河鋸製作所", "Miki", "JP", 45, 1), ("Čistota s.r.o.", "Brno", "CZ", 10, 0),
    ("Sanitär Aebischer", "Olten", "CH", 15, 0), ("Bondar Keramik", "Львів", "UA", 30, 0),
]

# category, description, its suppliers (numbers in the list above), its products with list prices
CATEGORIES = [
    ("Hand Tools", "Tools without a motor.", [1, 3, 11, 6], [
        ("Claw Hammer 450 g", 18.90), ("Ball-Peen Hammer", 22.50), ("Carpenter's Pencil Set", 4.20),
        ("Screwdriver Set, 6 pcs", 27.90), ("Japanese Pull Saw", 39.00), ("Bench Plane No. 4", 89.00),
        ("Adjustable Spanner", 16.40), ("Chisel Set, 4 pcs", 44.50), ("Spirit Level 60 cm", 24.90),
        ("Combination Pliers", 19.80)]),
    ("Power Tools", "Tools with a motor, corded and cordless.", [1, 4, 9], [
        ("Cordless Drill 18 V", 129.00), ("Impact Driver 18 V", 149.00), ("Angle Grinder", 74.90),
        ("Jigsaw 650 W", 69.00), ("Orbital Sander", 58.50), ("Circular Saw 1400 W", 119.00),
        ("Hot Air Gun", 36.90), ("Rotary Hammer", 189.00), ("Spare Battery 4 Ah", 64.00),
        ("Compact Router", 99.00)]),
    ("Garden", "For beds, hedges and lawns.", [1, 5, 6], [
        ("Garden Spade", 34.90), ("Digging Fork", 36.50), ("Hedge Shears", 28.90), ("Gardener's Knife", 15.90),
        ("Watering Can 9 l", 21.00), ("Wheelbarrow 85 l", 79.00), ("Leaf Rake", 14.90),
        ("Garden Hose 25 m", 32.00), ("Pruning Saw", 26.40), ("Raised Bed, Larch", 119.00)]),
    ("Lighting", "Lamps and lanterns.", [2, 9], [
        ("Work Lamp LED 20 W", 45.00), ("Inspection Lamp", 24.50), ("Head Torch", 19.90),
        ("Bulkhead Light", 17.80), ("Filament Bulb E27", 6.90), ("Storm Lantern", 29.00),
        ("Light String 10 m", 23.50), ("Floodlight 50 W", 38.90), ("Motion Sensor", 16.00),
        ("Reading Lamp", 42.00)]),
    ("Paint & Varnish", "Paints, oils and what goes with them.", [8, 10], [
        ("Wall Paint White 10 l", 49.90), ("Linseed Oil 100% Pure", 14.50), ("Boat Varnish 1 l", 26.90),
        ("Painter's Tape 50 m", 5.40), ("Paint Roller Set", 12.90), ("Primer 2.5 l", 24.00),
        ("Wood Stain Walnut", 18.60), ("Radiator Paint", 21.90), ("Brush Set, 5 pcs", 11.80),
        ("Chalk Paint 0.75 l", 16.90)]),
    ("Fixings", "Screws, plugs and glue.", [1, 4, 6], [
        ("Wood Screws 4x40, 200 pcs", 8.90), ("Wall Plugs 8 mm", 6.40), ("Carriage Bolts M8", 9.80),
        ("Cable Ties, black", 4.90), ("Steel Nails 70 mm", 5.20), ("Angle Bracket", 2.60),
        ("Wood Glue D3", 7.90), ("Threaded Rod M10", 3.80), ("Picture Hooks", 3.10),
        ("Mounting Foam", 8.20)]),
    ("Workwear", "To wear at work.", [10, 7], [
        ("Work Gloves 100% Leather", 16.90), ("Safety Glasses", 9.50), ("Ear Defenders", 18.40),
        ("Knee Pads", 21.90), ("Bib Overalls", 54.00), ("Rain Jacket", 62.00), ("Safety Shoes S3", 84.90),
        ("Beanie, Merino", 19.00), ("Dust Masks FFP2, 20 pcs", 22.80), ("Tool Belt", 39.90)]),
    ("Kitchen", "Cookware and knives.", [1, 14, 11], [
        ("Chef's Knife 20 cm", 69.00), ("Cast Iron Pan", 48.50), ("Stock Pot 8 l", 57.00),
        ("Chopping Board, Oak", 29.90), ("Kitchen Scale", 24.90), ("Mortar & Pestle", 32.00),
        ("Tea Towels 100% Linen", 18.50), ("Cook's Apron", 26.00), ("Pepper Mill", 34.90),
        ("Paring Knife 三徳", 41.00)]),
    ("Storage", "Boxes, shelves and racks.", [5, 4], [
        ("Tool Box 20\"", 31.90), ("Shelf Unit 180 cm", 74.00), ("Stacking Box 45 l", 13.50),
        ("Wall Rack", 22.90), ("Workbench, Beech", 289.00), ("Drawer Cabinet", 149.00),
        ("Hanging Rail", 17.40), ("Small Parts Case", 15.80), ("Lockable Cupboard", 219.00),
        ("Transport Trolley", 96.00)]),
    ("Plumbing", "Taps, pipes and seals.", [13, 4], [
        ("Basin Tap", 79.00), ("Shower Head", 34.50), ("Pipe Wrench", 29.80), ("PTFE Tape", 1.90),
        ("Flexible Hose 50 cm", 6.80), ("Ball Valve 1/2\"", 8.40), ("Drain Cleaner Spiral", 23.90),
        ("Syphon", 12.60), ("Sealing Ring Set", 4.50), ("Copper Pipe 2 m", 19.20)]),
    ("Electrical", "Cables, switches and meters.", [9, 2], [
        ("Extension Lead 10 m", 27.50), ("Cable Drum 40 m", 79.90), ("Multimeter", 39.00),
        ("Light Switch", 5.60), ("Socket, double", 7.90), ("Junction Box", 3.40), ("Wire Stripper", 18.90),
        ("Smoke Detector", 21.50), ("Doorbell Set", 33.00), ("Timer Switch", 12.40)]),
    ("Cleaning", "For floors, windows and workshops.", [12, 10], [
        ("Floor Cloths 100% Cotton", 8.90), ("Push Broom", 17.50), ("Window Squeegee", 9.80),
        ("Bucket 12 l", 6.50), ("All-Purpose Cleaner", 4.60), ("Hand Cleaner 2.5 l", 13.90),
        ("Microfibre Mop", 24.00), ("Dustpan & Brush", 8.20), ("Wet & Dry Vacuum", 139.00),
        ("Scrubbing Brush", 5.10)]),
]
# Brought out late in 2025: nobody has ordered them yet.
NEW_PRODUCTS = ["Compact Router", "Reading Lamp", "Chalk Paint 0.75 l", "Doorbell Set"]
