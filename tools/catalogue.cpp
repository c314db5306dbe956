#include "catalogue.h"

#include <cstring>
#include <map>
#include <string>

namespace Catalogue {

namespace {

const std::vector<Product> goods = {
    {"Hill's Science Plan Adult 12kg", "Hill's Science Plan Volwasse 12kg", "Bag", "Sak", 985.00},
    {"Hill's Science Plan Kitten 1.5kg", "Hill's Science Plan Katjie 1.5kg", "Bag", "Sak", 215.50},
    {"Royal Canin Medium Adult 15kg", "Royal Canin Medium Volwasse 15kg", "Bag", "Sak", 1120.00},
    {"Royal Canin Renal Cat 2kg", "Royal Canin Renal Kat 2kg", "Bag", "Sak", 398.00},
    {"Royal Canin Gastro Intestinal Can", "Royal Canin Gastro Intestinal Blik", "Can", "Blik", 38.40},
    {"Eukanuba Puppy Large Breed 15kg", "Eukanuba Hondjie Groot Ras 15kg", "Bag", "Sak", 1045.00},
    {"Frontline Plus Dog 10-20kg", "Frontline Plus Hond 10-20kg", "Pipette", "Pipet", 78.20},
    {"Frontline Plus Cat", "Frontline Plus Kat", "Pipette", "Pipet", 66.10},
    {"Bravecto Dog 20-40kg", "Bravecto Hond 20-40kg", "Tablet", "Tablet", 345.00},
    {"NexGard Spectra 7.5-15kg", "NexGard Spectra 7.5-15kg", "Tablet", "Tablet", 142.30},
    {"Advocate Cat 4-8kg", "Advocate Kat 4-8kg", "Pipette", "Pipet", 98.60},
    {"Seresto Collar Large Dog", "Seresto Halsband Groot Hond", "Each", "Elk", 410.00},
    {"Dewormer Tablets Dog (Milbemax)", "Ontwurmer Tablette Hond (Milbemax)", "Tablet", "Tablet", 41.90},
    {"Chlorhexidine Shampoo 250ml", "Chloorheksidien Sjampoe 250ml", "Bottle", "Bottel", 88.00},
    {"Malaseb Shampoo 250ml", "Malaseb Sjampoe 250ml", "Bottle", "Bottel", 162.00},
    {"Ear Cleaner Epi-Otic 125ml", "Oorskoonmaker Epi-Otic 125ml", "Bottle", "Bottel", 121.50},
    {"Elizabethan Collar 20cm", "Elizabethaanse Kraag 20cm", "Each", "Elk", 34.00},
    {"Elizabethan Collar 30cm", "Elizabethaanse Kraag 30cm", "Each", "Elk", 41.00},
    {"Nylon Lead 1.2m", "Nylon Leiband 1.2m", "Each", "Elk", 45.00},
    {"Cat Carrier Medium", "Katdraer Medium", "Each", "Elk", 289.00},
    {"Dental Chews Large (7)", "Tandkoue Groot (7)", "Pack", "Pak", 69.90},
    {"Toothbrush Kit Dog", "Tandeborsel Stel Hond", "Each", "Elk", 58.00},
    {"Kong Classic Medium", "Kong Klassiek Medium", "Each", "Elk", 149.00},
    {"Cat Litter Clumping 10l", "Katsand Klonterend 10l", "Bag", "Sak", 96.00},
    {"Recovery Diet a/d Can", "Herstel Dieet a/d Blik", "Can", "Blik", 44.50},
    {"Joint Supplement Chews (60)", "Gewrigaanvulling Koue (60)", "Tub", "Bak", 385.00},
    {"Omega Oil Capsules (90)", "Omega Olie Kapsules (90)", "Bottle", "Bottel", 210.00},
    {"Probiotic Paste 15ml", "Probiotiese Pasta 15ml", "Tube", "Buis", 87.00},
};

const std::vector<Product> hospital = {
    {"Hospitalisation Dog (per day)", "Hospitalisasie Hond (per dag)", "Day", "Dag", 220.00},
    {"Hospitalisation Cat (per day)", "Hospitalisasie Kat (per dag)", "Day", "Dag", 190.00},
    {"Intensive Care (per day)", "Intensiewe Sorg (per dag)", "Day", "Dag", 640.00},
    {"Isolation Ward (per day)", "Isolasie Saal (per dag)", "Day", "Dag", 380.00},
    {"IV Fluid Therapy Set-up", "Binneaarse Vloeistof Opstelling", "Each", "Elk", 260.00},
    {"Ringer's Lactate 1l", "Ringer se Laktaat 1l", "Bag", "Sak", 38.00},
    {"Sodium Chloride 0.9% 500ml", "Natriumchloried 0.9% 500ml", "Bag", "Sak", 29.50},
    {"IV Catheter 22G", "Binneaarse Kateter 22G", "Each", "Elk", 17.80},
    {"Infusion Set Paediatric", "Infusiestel Pediatries", "Each", "Elk", 24.00},
    {"Urinary Catheter Tomcat", "Urinekateter Kater", "Each", "Elk", 62.00},
    {"Bandage Cohesive 7.5cm", "Kohesiewe Verband 7.5cm", "Roll", "Rol", 21.50},
    {"Boarding Dog (per night)", "Losies Hond (per nag)", "Night", "Nag", 150.00},
    {"Boarding Cat (per night)", "Losies Kat (per nag)", "Night", "Nag", 120.00},
    {"Oxygen Therapy (per hour)", "Suurstofterapie (per uur)", "Hour", "Uur", 180.00},
    {"Syringe Feeding (per day)", "Spuitvoeding (per dag)", "Day", "Dag", 95.00},
    {"Blood Transfusion Administration", "Bloedoortapping Toediening", "Each", "Elk", 720.00},
};

const std::vector<Product> consult = {
    {"Consultation", "Konsultasie", "Each", "Elk", 420.00},
    {"Follow-up Consultation", "Opvolg Konsultasie", "Each", "Elk", 240.00},
    {"Consultation After Hours", "Konsultasie Na Ure", "Each", "Elk", 780.00},
    {"Emergency Consultation", "Noodkonsultasie", "Each", "Elk", 950.00},
    {"House Call", "Huisbesoek", "Each", "Elk", 850.00},
    {"Second Animal Consultation", "Tweede Dier Konsultasie", "Each", "Elk", 300.00},
    {"Nurse Consultation", "Verpleegster Konsultasie", "Each", "Elk", 160.00},
    {"Puppy Health Check", "Hondjie Gesondheidsondersoek", "Each", "Elk", 260.00},
    {"Senior Wellness Examination", "Senior Welstandondersoek", "Each", "Elk", 390.00},
    {"Behaviour Consultation", "Gedragskonsultasie", "Each", "Elk", 650.00},
    {"Dermatology Consultation", "Dermatologie Konsultasie", "Each", "Elk", 560.00},
    {"Ophthalmology Consultation", "Oftalmologie Konsultasie", "Each", "Elk", 590.00},
    {"Nutrition Consultation", "Voedingskonsultasie", "Each", "Elk", 280.00},
    {"Euthanasia Consultation", "Genadedood Konsultasie", "Each", "Elk", 450.00},
    {"Telephone Consultation", "Telefoniese Konsultasie", "Each", "Elk", 120.00},
    {"Post-operative Check", "Na-operatiewe Ondersoek", "Each", "Elk", 0.00},
};

const std::vector<Product> diagnosis = {
    {"Radiograph 1st View", "X-straal 1ste Aansig", "Each", "Elk", 480.00},
    {"Radiograph Additional View", "X-straal Bykomende Aansig", "Each", "Elk", 260.00},
    {"Dental Radiographs", "Tandheelkundige X-strale", "Each", "Elk", 540.00},
    {"Abdominal Ultrasound", "Abdominale Ultraklank", "Each", "Elk", 890.00},
    {"Cardiac Ultrasound", "Hart Ultraklank", "Each", "Elk", 1450.00},
    {"Pregnancy Ultrasound", "Swangerskap Ultraklank", "Each", "Elk", 450.00},
    {"ECG", "EKG", "Each", "Elk", 380.00},
    {"Blood Pressure Measurement", "Bloeddrukmeting", "Each", "Elk", 190.00},
    {"Schirmer Tear Test", "Schirmer Traantoets", "Each", "Elk", 95.00},
    {"Fluorescein Eye Stain", "Fluoressien Oogkleuring", "Each", "Elk", 110.00},
    {"Intraocular Pressure", "Intra-okulere Druk", "Each", "Elk", 160.00},
    {"Skin Scraping", "Velskraapsel", "Each", "Elk", 140.00},
    {"Ear Cytology", "Oor Sitologie", "Each", "Elk", 150.00},
    {"Fine Needle Aspirate", "Fynnaald Aspiraat", "Each", "Elk", 220.00},
    {"Endoscopy", "Endoskopie", "Each", "Elk", 1950.00},
    {"Wood's Lamp Examination", "Wood se Lamp Ondersoek", "Each", "Elk", 85.00},
};

const std::vector<Product> injection = {
    {"Amoxicillin LA 150mg/ml", "Amoksisillien LA 150mg/ml", "ml", "ml", 6.20},
    {"Enrofloxacin 50mg/ml", "Enrofloksasien 50mg/ml", "ml", "ml", 7.80},
    {"Cefovecin (Convenia) 80mg/ml", "Sefovesien (Convenia) 80mg/ml", "ml", "ml", 92.00},
    {"Meloxicam 5mg/ml", "Meloksikam 5mg/ml", "ml", "ml", 11.40},
    {"Carprofen 50mg/ml", "Karprofeen 50mg/ml", "ml", "ml", 14.60},
    {"Dexamethasone 2mg/ml", "Deksametasoon 2mg/ml", "ml", "ml", 3.90},
    {"Methylprednisolone 40mg/ml", "Metielprednisoloon 40mg/ml", "ml", "ml", 38.00},
    {"Buprenorphine 0.3mg/ml", "Buprenorfien 0.3mg/ml", "ml", "ml", 29.00},
    {"Butorphanol 10mg/ml", "Butorfanol 10mg/ml", "ml", "ml", 33.50},
    {"Medetomidine 1mg/ml", "Medetomidien 1mg/ml", "ml", "ml", 21.00},
    {"Ketamine 100mg/ml", "Ketamien 100mg/ml", "ml", "ml", 8.70},
    {"Propofol 10mg/ml", "Propofol 10mg/ml", "ml", "ml", 4.10},
    {"Maropitant (Cerenia) 10mg/ml", "Maropitant (Cerenia) 10mg/ml", "ml", "ml", 44.00},
    {"Metoclopramide 5mg/ml", "Metoklopramied 5mg/ml", "ml", "ml", 5.60},
    {"Furosemide 50mg/ml", "Furosemied 50mg/ml", "ml", "ml", 4.80},
    {"Vitamin B Complex", "Vitamien B Kompleks", "ml", "ml", 2.90},
    {"Atropine 0.5mg/ml", "Atropien 0.5mg/ml", "ml", "ml", 3.20},
    {"Diazepam 5mg/ml", "Diasepam 5mg/ml", "ml", "ml", 9.40},
    {"Oxytocin 10IU/ml", "Oksitosien 10IE/ml", "ml", "ml", 6.00},
    {"Pentobarbitone 200mg/ml", "Pentobarbitoon 200mg/ml", "ml", "ml", 5.20},
    {"Iron Dextran 200mg/ml", "Ysterdekstraan 200mg/ml", "ml", "ml", 3.10},
};

const std::vector<Product> lab = {
    {"Full Blood Count", "Volledige Bloedtelling", "Test", "Toets", 310.00},
    {"Biochemistry Profile", "Biochemie Profiel", "Test", "Toets", 520.00},
    {"Pre-anaesthetic Profile", "Pre-narkose Profiel", "Test", "Toets", 380.00},
    {"Renal Profile", "Nierprofiel", "Test", "Toets", 340.00},
    {"Liver Profile", "Lewerprofiel", "Test", "Toets", 360.00},
    {"Total T4", "Totale T4", "Test", "Toets", 290.00},
    {"Urinalysis", "Urine-ontleding", "Test", "Toets", 180.00},
    {"Urine Culture and Sensitivity", "Urinekultuur en Sensitiwiteit", "Test", "Toets", 460.00},
    {"Faecal Flotation", "Fekale Flotasie", "Test", "Toets", 120.00},
    {"Tick Fever Smear", "Bosluiskoors Smeer", "Test", "Toets", 95.00},
    {"FIV/FeLV Snap Test", "FIV/FeLV Kitstoets", "Test", "Toets", 330.00},
    {"Parvo Snap Test", "Parvo Kitstoets", "Test", "Toets", 280.00},
    {"Heartworm Antigen", "Hartwurm Antigeen", "Test", "Toets", 300.00},
    {"Histopathology", "Histopatologie", "Test", "Toets", 690.00},
    {"Cytology Referral", "Sitologie Verwysing", "Test", "Toets", 420.00},
    {"Bile Acids Stimulation", "Galsure Stimulasie", "Test", "Toets", 510.00},
    {"Cortisol ACTH Stimulation", "Kortisol ACTH Stimulasie", "Test", "Toets", 780.00},
    {"Blood Glucose Curve", "Bloedglukose Kurwe", "Test", "Toets", 260.00},
    {"Skin Culture (Fungal)", "Velkultuur (Swam)", "Test", "Toets", 350.00},
    {"Coagulation Profile", "Stollingsprofiel", "Test", "Toets", 440.00},
};

const std::vector<Product> medication = {
    {"Metacam Oral Suspension 1.5mg/ml", "Metacam Mondsuspensie 1.5mg/ml", "ml", "ml", 3.10},
    {"Amoxicillin/Clav 250mg Tabs", "Amoksisillien/Klav 250mg Tablette", "Tablet", "Tablet", 6.40},
    {"Amoxicillin/Clav 500mg Tabs", "Amoksisillien/Klav 500mg Tablette", "Tablet", "Tablet", 9.80},
    {"Cephalexin 500mg Caps", "Sefaleksien 500mg Kapsules", "Capsule", "Kapsule", 5.90},
    {"Doxycycline 100mg Tabs", "Doksisiklien 100mg Tablette", "Tablet", "Tablet", 4.70},
    {"Metronidazole 200mg Tabs", "Metronidasool 200mg Tablette", "Tablet", "Tablet", 1.80},
    {"Enrofloxacin 50mg Tabs", "Enrofloksasien 50mg Tablette", "Tablet", "Tablet", 5.20},
    {"Carprofen 50mg Tabs", "Karprofeen 50mg Tablette", "Tablet", "Tablet", 7.10},
    {"Firocoxib 227mg Tabs", "Firokoksib 227mg Tablette", "Tablet", "Tablet", 24.50},
    {"Tramadol 50mg Caps", "Tramadol 50mg Kapsules", "Capsule", "Kapsule", 2.60},
    {"Gabapentin 100mg Caps", "Gabapentien 100mg Kapsules", "Capsule", "Kapsule", 3.30},
    {"Prednisolone 5mg Tabs", "Prednisoloon 5mg Tablette", "Tablet", "Tablet", 0.90},
    {"Apoquel 16mg Tabs", "Apoquel 16mg Tablette", "Tablet", "Tablet", 21.80},
    {"Cytopoint 20mg", "Cytopoint 20mg", "Vial", "Flessie", 610.00},
    {"Furosemide 40mg Tabs", "Furosemied 40mg Tablette", "Tablet", "Tablet", 1.20},
    {"Pimobendan 5mg Tabs", "Pimobendan 5mg Tablette", "Tablet", "Tablet", 13.90},
    {"Benazepril 5mg Tabs", "Benasepril 5mg Tablette", "Tablet", "Tablet", 6.30},
    {"Methimazole 5mg Tabs", "Metimasool 5mg Tablette", "Tablet", "Tablet", 4.10},
    {"Levothyroxine 0.4mg Tabs", "Levotiroksien 0.4mg Tablette", "Tablet", "Tablet", 3.60},
    {"Insulin Caninsulin 10ml", "Insulien Caninsulin 10ml", "Vial", "Flessie", 690.00},
    {"Phenobarbitone 30mg Tabs", "Fenobarbitoon 30mg Tablette", "Tablet", "Tablet", 1.10},
    {"Diazepam 5mg Tabs", "Diasepam 5mg Tablette", "Tablet", "Tablet", 1.40},
    {"Acepromazine 10mg Tabs", "Asepromasien 10mg Tablette", "Tablet", "Tablet", 2.20},
    {"Maropitant 16mg Tabs", "Maropitant 16mg Tablette", "Tablet", "Tablet", 18.60},
    {"Omeprazole 20mg Caps", "Omeprasool 20mg Kapsules", "Capsule", "Kapsule", 2.40},
    {"Sucralfate 1g Tabs", "Sukralfaat 1g Tablette", "Tablet", "Tablet", 3.70},
    {"Lactulose Syrup 200ml", "Laktulose Stroop 200ml", "Bottle", "Bottel", 96.00},
    {"Chloramphenicol Eye Ointment", "Chlooramfenikol Oogsalf", "Tube", "Buis", 48.00},
    {"Tobramycin Eye Drops 5ml", "Tobramisien Oogdruppels 5ml", "Bottle", "Bottel", 82.00},
    {"Surolan Ear Drops 15ml", "Surolan Oordruppels 15ml", "Bottle", "Bottel", 128.00},
    {"Fusidic Acid Cream 15g", "Fusidiensuur Room 15g", "Tube", "Buis", 64.00},
    {"Praziquantel 50mg Tabs", "Prasikwantel 50mg Tablette", "Tablet", "Tablet", 5.50},
    {"Ivermectin Oral 1% 10ml", "Ivermektien Mondeling 1% 10ml", "Bottle", "Bottel", 55.00},
    {"Cyclosporin 50mg Caps", "Siklosporien 50mg Kapsules", "Capsule", "Kapsule", 19.80},
    {"Potassium Citrate Powder", "Kaliumsitraat Poeier", "Sachet", "Sakkie", 8.40},
    {"Spironolactone 25mg Tabs", "Spironolaktoon 25mg Tablette", "Tablet", "Tablet", 2.90},
    {"Clindamycin 150mg Caps", "Klindamisien 150mg Kapsules", "Capsule", "Kapsule", 6.80},
    {"Buprenorphine Oral 0.3mg/ml", "Buprenorfien Mondeling 0.3mg/ml", "ml", "ml", 27.00},
};

const std::vector<Product> procedures = {
    {"Spay Bitch < 20kg", "Sterilisasie Teef < 20kg", "Each", "Elk", 1850.00},
    {"Spay Bitch > 20kg", "Sterilisasie Teef > 20kg", "Each", "Elk", 2450.00},
    {"Spay Queen", "Sterilisasie Kat", "Each", "Elk", 1250.00},
    {"Castration Dog", "Kastrasie Hond", "Each", "Elk", 1350.00},
    {"Castration Tom", "Kastrasie Kater", "Each", "Elk", 650.00},
    {"Dental Scale and Polish", "Tande Skaal en Poleer", "Each", "Elk", 1280.00},
    {"Tooth Extraction Simple", "Tandtrekking Eenvoudig", "Each", "Elk", 240.00},
    {"Tooth Extraction Surgical", "Tandtrekking Chirurgies", "Each", "Elk", 620.00},
    {"Anaesthetic (per 15 min)", "Narkose (per 15 min)", "Unit", "Eenheid", 310.00},
    {"Sedation", "Sedasie", "Each", "Elk", 380.00},
    {"Wound Repair Minor", "Wondherstel Klein", "Each", "Elk", 560.00},
    {"Wound Repair Major", "Wondherstel Groot", "Each", "Elk", 1480.00},
    {"Lump Removal", "Kwasverwydering", "Each", "Elk", 980.00},
    {"Abscess Lance and Flush", "Absesopening en Spoel", "Each", "Elk", 420.00},
    {"Cystotomy", "Sistotomie", "Each", "Elk", 3650.00},
    {"Gastrotomy Foreign Body", "Gastrotomie Vreemde Voorwerp", "Each", "Elk", 4900.00},
    {"Cruciate Repair (TPLO)", "Kruisligament Herstel (TPLO)", "Each", "Elk", 14500.00},
    {"Enucleation", "Enukleasie", "Each", "Elk", 2200.00},
    {"Anal Gland Expression", "Anaalklier Uitdrukking", "Each", "Elk", 120.00},
    {"Nail Clip", "Naelknip", "Each", "Elk", 70.00},
    {"Microchip Implantation", "Mikroskyfie Inplanting", "Each", "Elk", 190.00},
    {"Euthanasia", "Genadedood", "Each", "Elk", 520.00},
    {"Cremation Small (< 10kg)", "Verassing Klein (< 10kg)", "Each", "Elk", 480.00},
};

const std::vector<Product> vaccination = {
    {"DHPPi Puppy Vaccine", "DHPPi Hondjie Entstof", "Dose", "Dosis", 92.00},
    {"DHPPi+L Annual Booster", "DHPPi+L Jaarlikse Opknapper", "Dose", "Dosis", 108.00},
    {"Rabies Vaccine", "Hondsdolheid Entstof", "Dose", "Dosis", 34.00},
    {"Kennel Cough Intranasal", "Kennelhoes Intranasaal", "Dose", "Dosis", 128.00},
    {"Leptospirosis Vaccine", "Leptospirose Entstof", "Dose", "Dosis", 61.00},
    {"Canine Coronavirus Vaccine", "Hond Koronavirus Entstof", "Dose", "Dosis", 58.00},
    {"Feline Tricat Vaccine", "Kat Tricat Entstof", "Dose", "Dosis", 86.00},
    {"Feline Leukaemia Vaccine", "Kat Leukemie Entstof", "Dose", "Dosis", 142.00},
    {"Feline Chlamydia Vaccine", "Kat Chlamidia Entstof", "Dose", "Dosis", 97.00},
    {"Canine Parvovirus Vaccine", "Hond Parvovirus Entstof", "Dose", "Dosis", 71.00},
    {"Distemper-Measles Vaccine", "Hondesiekte-Masels Entstof", "Dose", "Dosis", 84.00},
    {"Tick Bite Fever Vaccine", "Bosluisbytkoors Entstof", "Dose", "Dosis", 156.00},
    {"Rabbit Myxomatosis/RHD Vaccine", "Konyn Miksomatose/RHD Entstof", "Dose", "Dosis", 175.00},
    {"Equine Influenza Vaccine", "Perde Griep Entstof", "Dose", "Dosis", 210.00},
    {"African Horse Sickness Vaccine", "Perdesiekte Entstof", "Dose", "Dosis", 185.00},
};

const std::vector<const char *> categoryNames = {"Goods", "Hospital", "Consult", "Diagnosis", "Injection",
                                                 "Lab", "Medication", "Proc", "Vaccination"};

const std::vector<Supplier> supplierList = {
    {"Afrivet Distributors", "Johan Kruger", "012 817 9060", false},
    {"Midlands Vet Wholesale", "Priya Govender", "033 342 1187", false},
    {"Onderstepoort Biological Products", "Thabo Mokoena", "012 522 1500", false},
    {"Cape Animal Health Supplies", "Lauren Adams", "021 948 3321", false},
    {"PetFood Direct", "Gert Steyn", "011 794 2200", false},
    {"Vetlab Pathology Services", "Dr. Nomsa Dlamini", "011 482 5560", true},
};

const std::vector<Breed> breedList = {
    {"Labrador Retriever", "Labrador Retriever", 32}, {"German Shepherd", "Duitse Herdershond", 35},
    {"Boerboel", "Boerboel", 60}, {"Jack Russell Terrier", "Jack Russell Terrier", 7},
    {"Dachshund", "Worshond", 9}, {"Yorkshire Terrier", "Yorkshire Terrier", 3},
    {"Maltese", "Maltees", 4}, {"Staffordshire Bull Terrier", "Staffordshire Bulterrier", 16},
    {"Rottweiler", "Rottweiler", 45}, {"Golden Retriever", "Goue Retriever", 30},
    {"Border Collie", "Border Collie", 19}, {"Rhodesian Ridgeback", "Rhodesiese Rifrug", 36},
    {"Pug", "Mopshond", 8}, {"French Bulldog", "Franse Bulhond", 12},
    {"Chihuahua", "Chihuahua", 2.5}, {"Pit Bull Terrier", "Pitbulterrier", 25},
    {"Bull Terrier", "Bulterrier", 27}, {"Husky", "Husky", 23},
    {"Beagle", "Brak", 11}, {"Schnauzer (Miniature)", "Schnauzer (Miniatuur)", 7},
    {"Great Dane", "Duitse Dog", 62}, {"Boxer", "Bokser", 29},
    {"Cocker Spaniel", "Cocker Spaniel", 13}, {"Shih Tzu", "Shih Tzu", 6},
    {"Weimaraner", "Weimaraner", 32}, {"Africanis", "Africanis", 22},
    {"Mixed Breed Dog", "Gemengde Ras Hond", 18}, {"Poodle (Toy)", "Poedel (Speelgoed)", 3.5},
    {"Domestic Shorthair", "Huiskat Korthaar", 4.5}, {"Domestic Longhair", "Huiskat Langhaar", 4.8},
    {"Siamese", "Siamees", 4}, {"Persian", "Persies", 4.5},
    {"Maine Coon", "Maine Coon", 7}, {"British Shorthair", "Britse Korthaar", 5.5},
    {"Ragdoll", "Ragdoll", 6}, {"Bengal", "Bengaal", 5},
    {"Sphynx", "Sfinks", 3.8}, {"Rabbit (Dwarf Lop)", "Konyn (Dwerg Hangoor)", 1.8},
    {"Guinea Pig", "Marmot", 1.0}, {"Thoroughbred Horse", "Volbloed Perd", 480},
};

const std::vector<const char *> surnameList = {
    "Botha", "van der Merwe", "Naidoo", "Nkosi", "Smith", "Pretorius", "Dlamini", "Jacobs",
    "du Plessis", "Pillay", "Mokoena", "Venter", "Williams", "Ndlovu", "Coetzee", "Khumalo",
    "Steyn", "Adams", "Fourie", "Govender", "Mahlangu", "Nel", "Petersen", "Zulu",
    "Erasmus", "Brown", "Mthembu", "Kruger", "Jones", "Sithole", "van Wyk", "Hendricks",
    "Swanepoel", "Moodley", "Cele", "Louw", "Taylor", "Radebe", "Marais", "O'Brien",
    "Müller", "Meyer", "Ferreira", "Daniels", "Baloyi", "Viljoen", "Reddy", "Mabena",
};

const std::vector<const char *> petNameList = {
    "Bella", "Max", "Luna", "Charlie", "Daisy", "Rocky", "Milo", "Lucy", "Simba", "Coco",
    "Bruno", "Tiger", "Nala", "Buddy", "Molly", "Oscar", "Lola", "Jack", "Shadow", "Rosie",
    "Zeus", "Ginger", "Muffin", "Snowy", "Bobby", "Kitty", "Duke", "Sasha", "Toby", "Misty",
    "Rex", "Peanut", "Smokey", "Lady", "Jessie", "Bailey", "Chloé", "Leo", "Rusty", "Tessa",
};

const std::vector<const char *> streetList = {
    "Church Street", "Main Road", "Kloof Street", "Dorp Street", "Voortrekker Road", "Long Street",
    "Jan Smuts Avenue", "Oak Avenue", "Beach Road", "Bree Street", "Rivier Weg", "Protea Close",
};

const std::vector<const char *> townList = {
    "Stellenbosch", "Somerset West", "Paarl", "Bellville", "Durbanville", "Kuils River",
    "Franschhoek", "Strand",
};

const std::map<std::string, const std::vector<Product> *> byCategory = {
    {"Goods", &goods}, {"Hospital", &hospital}, {"Consult", &consult}, {"Diagnosis", &diagnosis},
    {"Injection", &injection}, {"Lab", &lab}, {"Medication", &medication}, {"Proc", &procedures},
    {"Vaccination", &vaccination},
};

} // namespace

const std::vector<const char *> &categories() { return categoryNames; }

const std::vector<Product> &products(const char *category) { return *byCategory.at(category); }

bool isService(const char *category)
{
    return !std::strcmp(category, "Consult") || !std::strcmp(category, "Diagnosis") || !std::strcmp(category, "Proc");
}

const std::vector<Supplier> &suppliers() { return supplierList; }
const std::vector<Breed> &breeds() { return breedList; }
const std::vector<const char *> &surnames() { return surnameList; }
const std::vector<const char *> &petNames() { return petNameList; }
const std::vector<const char *> &streets() { return streetList; }
const std::vector<const char *> &towns() { return townList; }

} // namespace Catalogue
