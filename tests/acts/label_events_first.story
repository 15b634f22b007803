Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --regional en
; check: result.dxf
; run: print_lines.py result.dxf 0
; run: print_references.py result.dxf ARBRE
; run: print_references.py result.dxf PORTE_90
; What breaks off a run in its first label. A block without attributes, with the leader line that is on at first.
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
> Combo2 = ARBRE
(typed only; "Combo2 : ARBRE" chooses the entry)
; Escape or Enter at the insertion point: nothing is placed
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :
[fmLabels] Vorlane 1.0 : Labelling (again)
; Escape at the leader's first point: the second is asked for all the same, and without a start there is no line
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :1,-10
Indiquer le 1er point de la ligne de repère :esc
Indiquer le 2è point de la ligne de repère :2,-10
[fmLabels] Vorlane 1.0 : Labelling (again)
; Escape at the second point
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :2,-10
Indiquer le 1er point de la ligne de repère :2,-11
Indiquer le 2è point de la ligne de repère :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; a refused scale: no label, but its leader line, and the run ends
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
> Text1 = 0
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :3,-10
Indiquer le 1er point de la ligne de repère :3,-11
Indiquer le 2è point de la ligne de repère :3,-12
[fmLabels] Vorlane 1.0 : Labelling (again)
; text that is no number counts as 0
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> Text1 = big
> CheckBox2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :4,-10
[fmLabels] Vorlane 1.0 : Labelling (again)
; Escape at the orientation: no label
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters (again)
> Text1 = 1
> CheckBox1
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :5,-10
Indiquer l'orientation :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; Escape at the picks of attributes never ends the run
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> Combo1 = Longueur Auto Monoclic
(typed only; "Combo1 : Longueur Auto Monoclic" chooses the entry)
> ListView1 # 2
> Combo1 = Aire Auto Polyclic
(typed only; "Combo1 : Aire Auto Polyclic" chooses the entry)
> ListView1 # 3
> Combo1 = Abscisse X Auto
(typed only; "Combo1 : Abscisse X Auto" chooses the entry)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :6,-10
Indiquer l'orientation :0
Selectionner le contour ou l'objet. esc
Cliquer sur le premier point pour le contour polyclic : esc
Selectionner le point à repérer. esc
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
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
        2 | Attribut 2 | PASSAGE | 90 | Aire Auto Polyclic
      > 3 | Attribut 3 | COUPE_FEU | néant | Abscisse X Auto
        4 | Attribut 4 | HUISSERIE | bois | Saisie manuel
    Label3: Value of Attribut 3 :
    Text1: "néant" (disabled)
    Combo1: "Abscisse X Auto"
        0 Saisie manuel
      > 1 Abscisse X Auto
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
    BtnAttFormat: [...] (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 4 ATTRIB, 3 INSERT, 1 LINE, 1 SEQEND
-- run print_lines.py result.dxf 0
3,-11,0 to 3,-12,0
-- run print_references.py result.dxf ARBRE
Model: at 11,-4.5,0 scale 1.2,1.2,1.2 rotation 18 layer JARDIN
Model: at 17.2,-1,0 scale 0.8,0.8,0.8 rotation 12 layer JARDIN
Model: at 2,-4.8,0 scale 1,1,1 rotation 15 layer JARDIN
Model: at 5.5,-4.6,0 scale 0.9,0.9,0.9 rotation 13.5 layer JARDIN
Model: at 1,-10,0 scale 1,1,1 rotation 0 layer 0
Model: at 2,-10,0 scale 1,1,1 rotation 0 layer 0
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 6,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='' PASSAGE='0' COUPE_FEU='3' HUISSERIE='bois'
