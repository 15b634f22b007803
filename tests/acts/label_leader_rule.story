Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --regional en --keep-going
; exit: 1
; check: result.dxf
; run: print_lines.py result.dxf 0
; run: print_references.py result.dxf PORTE_90
; A leader line can start at the label's own pick only where there is one such pick.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: _
    Text1: ""
    Combo1: "Saisie manuel" (disabled)
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        ... and 5 more
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings] (disabled)
  BtnInserer: [Insert] (disabled)
  OKButton: [Close]
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters
  Frame1: Scale
    Label1: X scale
    Text1: "1"
    Label2: Y scale
    Text2: "1"
    Label3: Z scale
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Specify on screen
    Label4: Rotation angle (°)
    Text4: "0"
  Frame3: Leader line
    CheckBox2: [x] Draw a leader line
    Option1: (o) From a new point
    Option2: ( ) From the picked point
  OKButton: [OK]
> Option2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
; one value from an object: the line starts where the object was clicked
> Combo1 = Longueur Auto Monoclic
(typed only; "Combo1 : Longueur Auto Monoclic" chooses the entry)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :1,-10
Selectionner le contour ou l'objet. 8,-3
Indiquer le 2è point de la ligne de repère :3,-12
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; a second value
> ListView1 # 2
> Combo1 = Nom du Calque
+-- Vorlane : Erreur (!)
|  L'option 'ligne de repérage à partir du point de sélection'
|  n 'est pas valable avec plus d'une valeur Auto ni avec
|  avec des valeurs Auto polyclic.
|  Vorlane a corrigé le choix.
+-- [ok]
> ok
(typed only; "Combo1 : Nom du Calque" chooses the entry)
> show
  Label1: Block to insert:
  Combo2: "PORTE_90"
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      8 CARTOUCHE
      9 CHAISE
      10 ENSEMBLE_REPAS
      11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
    > 18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 4 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
        1 | Attribut 1 | CODE | ? | Longueur Auto Monoclic
      > 2 | Attribut 2 | PASSAGE | 90 | Nom du Calque
        3 | Attribut 3 | COUPE_FEU | néant | Saisie manuel
        4 | Attribut 4 | HUISSERIE | bois | Saisie manuel
    Label3: Value of Attribut 2 :
    Text1: "90" (disabled)
    Combo1: "Nom du Calque"
        0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
      > 11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> show
  Frame1: Scale
    Label1: X scale
    Text1: "1"
    Label2: Y scale
    Text2: "1"
    Label3: Z scale
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Specify on screen
    Label4: Rotation angle (°)
    Text4: "0"
  Frame3: Leader line
    CheckBox2: [x] Draw a leader line
    Option1: (o) From a new point
    Option2: ( ) From the picked point
  OKButton: [OK]
; chosen again, it is put right again
> Option2
+-- Vorlane : Erreur (!)
|  L'option 'ligne de repérage à partir du point de sélection'
|  n 'est pas valable avec plus d'une valeur Auto ni avec
|  avec des valeurs Auto polyclic.
|  Vorlane a corrigé le choix.
+-- [ok]
> ok
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
; a polygon, all alone
> Combo1 = Saisie manuel
(typed only; "Combo1 : Saisie manuel" chooses the entry)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> Option2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 1
> Combo1 = Aire Auto Polyclic
+-- Vorlane : Erreur (!)
|  L'option 'ligne de repérage à partir du point de sélection'
|  n 'est pas valable avec plus d'une valeur Auto ni avec
|  avec des valeurs Auto polyclic.
|  Vorlane a corrigé le choix.
+-- [ok]
> ok
(typed only; "Combo1 : Aire Auto Polyclic" chooses the entry)
; also with the leader line switched off
> Combo1 = Saisie manuel
(typed only; "Combo1 : Saisie manuel" chooses the entry)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> Option2
> CheckBox2
> show
  Frame1: Scale
    Label1: X scale
    Text1: "1"
    Label2: Y scale
    Text2: "1"
    Label3: Z scale
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Specify on screen
    Label4: Rotation angle (°)
    Text4: "0"
  Frame3: Leader line
    CheckBox2: [ ] Draw a leader line
    Option1: ( ) From a new point (disabled)
    Option2: (o) From the picked point (disabled)
  OKButton: [OK]
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> Combo1 = Périmètre Auto Polyclic
+-- Vorlane : Erreur (!)
|  L'option 'ligne de repérage à partir du point de sélection'
|  n 'est pas valable avec plus d'une valeur Auto ni avec
|  avec des valeurs Auto polyclic.
|  Vorlane a corrigé le choix.
+-- [ok]
> ok
(typed only; "Combo1 : Périmètre Auto Polyclic" chooses the entry)
; a mode that another block left behind counts, though the list says that all values are typed
> Combo1 = Saisie manuel
(typed only; "Combo1 : Saisie manuel" chooses the entry)
> ListView1 # 3
> Combo1 = Longueur Auto Polyclic
(typed only; "Combo1 : Longueur Auto Polyclic" chooses the entry)
> ListView1 # 1
> Combo2 = ETIQUETTE_PIECE
(typed only; "Combo2 : ETIQUETTE_PIECE" chooses the entry)
> show
  Label1: Block to insert:
  Combo2: "ETIQUETTE_PIECE"
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      8 CARTOUCHE
      9 CHAISE
      10 ENSEMBLE_REPAS
    > 11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
      18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 3 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
      > 1 | Attribut 1 | NUMERO | 00 | Saisie manuel
        2 | Attribut 2 | NOM | Pièce | Saisie manuel
        3 | Attribut 3 | SURFACE | 0,00 m² | Saisie manuel
    Label3: Value of Attribut 1 :
    Text1: "00"
    Combo1: "Saisie manuel"
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
        11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> CheckBox2
> Option2
+-- Vorlane : Erreur (!)
|  L'option 'ligne de repérage à partir du point de sélection'
|  n 'est pas valable avec plus d'une valeur Auto ni avec
|  avec des valeurs Auto polyclic.
|  Vorlane a corrigé le choix.
+-- [ok]
> ok
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 23: ok: L'option 'ligne de repérage à partir du point de sélection' n 'est pas valable avec plus d'une valeur Auto ni avec avec des valeurs Auto polyclic. Vorlane a corrigé le choix.
vorlane-console: line 29: ok: L'option 'ligne de repérage à partir du point de sélection' n 'est pas valable avec plus d'une valeur Auto ni avec avec des valeurs Auto polyclic. Vorlane a corrigé le choix.
vorlane-console: line 38: ok: L'option 'ligne de repérage à partir du point de sélection' n 'est pas valable avec plus d'une valeur Auto ni avec avec des valeurs Auto polyclic. Vorlane a corrigé le choix.
vorlane-console: line 47: ok: L'option 'ligne de repérage à partir du point de sélection' n 'est pas valable avec plus d'une valeur Auto ni avec avec des valeurs Auto polyclic. Vorlane a corrigé le choix.
vorlane-console: line 58: ok: L'option 'ligne de repérage à partir du point de sélection' n 'est pas valable avec plus d'une valeur Auto ni avec avec des valeurs Auto polyclic. Vorlane a corrigé le choix.
-- check result.dxf
removed: none
added: 4 ATTRIB, 1 INSERT, 1 LINE, 1 SEQEND
-- run print_lines.py result.dxf 0
8,-3,0 to 3,-12,0
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 1,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='22' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
