Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --regional fr
; check: result.dxf
; run: print_references.py result.dxf PORTE_90
; A square clicked in either direction: 30 along its sides, 40 round, 100 inside; clicked to its start again, 40 along.
; Then two points, one, none.
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
> Combo1 = Longueur Auto Polyclic
(typed only; "Combo1 : Longueur Auto Polyclic" chooses the entry)
> ListView1 # 2
> Combo1 = Périmètre Auto Polyclic
(typed only; "Combo1 : Périmètre Auto Polyclic" chooses the entry)
> ListView1 # 3
> Combo1 = Aire Auto Polyclic
(typed only; "Combo1 : Aire Auto Polyclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: COUPE_FEU
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Aire Auto Polyclic
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0"
      > 0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> Text2 =  m²
> Combo1 # 2
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
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
> CheckBox2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :30,0
Cliquer sur le premier point pour le contour polyclic : 0,0
Cliquer sur le point suivant pour le contour polyclic : 10,0,7
Cliquer sur le point suivant pour le contour polyclic : 10,10
Cliquer sur le point suivant pour le contour polyclic : 0,10
Cliquer sur le point suivant pour le contour polyclic : 
Indiquer le point d'insertion du bloc :31,0
Cliquer sur le premier point pour le contour polyclic : 0,0
Cliquer sur le point suivant pour le contour polyclic : 0,10
Cliquer sur le point suivant pour le contour polyclic : 10,10
Cliquer sur le point suivant pour le contour polyclic : 10,0
Cliquer sur le point suivant pour le contour polyclic : esc
Indiquer le point d'insertion du bloc :32,0
Cliquer sur le premier point pour le contour polyclic : 0,0
Cliquer sur le point suivant pour le contour polyclic : 10,0
Cliquer sur le point suivant pour le contour polyclic : 10,10
Cliquer sur le point suivant pour le contour polyclic : 0,10
Cliquer sur le point suivant pour le contour polyclic : 0,0
Cliquer sur le point suivant pour le contour polyclic : 
Indiquer le point d'insertion du bloc :33,0
Cliquer sur le premier point pour le contour polyclic : 0,0
Cliquer sur le point suivant pour le contour polyclic : 3,4
Cliquer sur le point suivant pour le contour polyclic : 
Indiquer le point d'insertion du bloc :34,0
Cliquer sur le premier point pour le contour polyclic : 0,0
Cliquer sur le point suivant pour le contour polyclic : 
Indiquer le point d'insertion du bloc :35,0
Cliquer sur le premier point pour le contour polyclic : 
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 24 ATTRIB, 6 INSERT, 6 SEQEND
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 30,0,0 scale 1,1,1 rotation 0 layer 0 CODE='30' PASSAGE='40' COUPE_FEU='100,00 m²' HUISSERIE='bois'
Model: at 31,0,0 scale 1,1,1 rotation 0 layer 0 CODE='30' PASSAGE='40' COUPE_FEU='100,00 m²' HUISSERIE='bois'
Model: at 32,0,0 scale 1,1,1 rotation 0 layer 0 CODE='40' PASSAGE='40' COUPE_FEU='100,00 m²' HUISSERIE='bois'
Model: at 33,0,0 scale 1,1,1 rotation 0 layer 0 CODE='5' PASSAGE='10' COUPE_FEU='0,00 m²' HUISSERIE='bois'
Model: at 34,0,0 scale 1,1,1 rotation 0 layer 0 CODE='0' PASSAGE='0' COUPE_FEU='0,00 m²' HUISSERIE='bois'
Model: at 35,0,0 scale 1,1,1 rotation 0 layer 0 CODE='0' PASSAGE='0' COUPE_FEU='0,00 m²' HUISSERIE='bois'
