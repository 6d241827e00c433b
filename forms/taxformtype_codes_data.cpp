#include <LibControl/forms/taxformtype.h>

// Provinces, slips, wizard steps and the code tables of particular forms.

// Quebec (11) and the non-resident kinds have no calculation module of
// their own; IsProvinceSupported relies on that.
STRUCT_PROVINCE_INFO const Global_Provs_Info[18] = {
    {PROV_NONE, "Choose A Province", nullptr, nullptr, nullptr},
    {PROV_AB, "Alberta", "AB", "ProvAB", "ProvNRAB"},
    {PROV_BC, "British Columbia", "BC", "ProvBC", "ProvNRBC"},
    {PROV_MB, "Manitoba", "MB", "ProvMB", "ProvNRMB"},
    {PROV_NB, "New Brunswick", "NB", "ProvNB", "ProvNRNB"},
    {PROV_NL, "Newfoundland And Labrador", "NL", "ProvNL", "ProvNRNL"},
    {PROV_NS, "Nova Scotia", "NS", "ProvNS", "ProvNRNS"},
    {PROV_NT, "Northwest Territory", "NT", "ProvNT", "ProvNRNT"},
    {PROV_NU, "Nunavut", "NU", "ProvNU", "ProvNRNU"},
    {PROV_ON, "Ontario", "ON", "ProvON", "ProvNRON"},
    {PROV_PE, "Prince Edward Island", "PE", "ProvPE", "ProvNRPE"},
    {PROV_QC, "Quebec", "QC", nullptr, nullptr},
    {PROV_SK, "Saskatchewan", "SK", "ProvSK", "ProvNRSK"},
    {PROV_YT, "Yukon Territory", "YT", "ProvYT", "ProvNRYT"},
    {PROV_NONRESIDENT, "Non-Resident", "OT", nullptr, nullptr},
    {PROV_NONRESIDENT_S216, "Non-Resident Under Section 216", "OT", nullptr, nullptr},
    {PROV_NONRESIDENT_S217, "Non-Resident Under Section 217", "OT", nullptr, nullptr},
    {PROV_DEEMED_RESIDENT, "Deemed Resident", "OT", nullptr, nullptr},
};

STRUCT_PROVINCE2_INFO const Global2_Provs_Info[18] = {
    {PROV_NONE, "Choose A Province", nullptr, nullptr},
    {PROV_AB, "Alberta", "AB", "TrustProvAB"},
    {PROV_BC, "British Columbia", "BC", "TrustProvBC"},
    {PROV_MB, "Manitoba", "MB", "TrustProvMB"},
    {PROV_NB, "New Brunswick", "NB", "TrustProvNB"},
    {PROV_NL, "Newfoundland And Labrador", "NL", "TrustProvNL"},
    {PROV_NS, "Nova Scotia", "NS", "TrustProvNS"},
    {PROV_NT, "Northwest Territory", "NT", "TrustProvNT"},
    {PROV_NU, "Nunavut", "NU", "TrustProvNU"},
    {PROV_ON, "Ontario", "ON", "TrustProvON"},
    {PROV_PE, "Prince Edward Island", "PE", "TrustProvPE"},
    {PROV_QC, "Quebec", "QC", nullptr},
    {PROV_SK, "Saskatchewan", "SK", "TrustProvSK"},
    {PROV_YT, "Yukon Territory", "YT", "TrustProvYT"},
    {PROV_NONRESIDENT, "Non-Resident", "OT", nullptr},
    {PROV_NONRESIDENT_S216, "Non-Resident Under Section 216", "OT", nullptr},
    {PROV_NONRESIDENT_S217, "Non-Resident Under Section 217", "OT", nullptr},
    {PROV_DEEMED_RESIDENT, "Deemed Resident", "OT", nullptr},
};

// "SlipData_RRSPContriubtion" is the data class's real name.
STRUCT_SLIP_INFO const Global_Slips_Info[27] = {
    {SLIP_NA, "N/A", "N/A", "None"},
    {SLIP_T4, "T4 (Releve 1)", "T4 - Statement of Remuneration Paid (Releve 1)", "SlipData_T4"},
    {SLIP_T4A, "T4A", "T4A - Statement of Pension, Retirement, Annuity, and Other Income", "SlipData_T4A"},
    {SLIP_T4AP, "T4A(P)", "T4A(P) - Statement of Canada Pension Plan Benefits", "SlipData_T4AP"},
    {SLIP_T4RSP, "T4RSP", "T4RSP - Statement of RRSP Income", "SlipData_T4RSP"},
    {SLIP_T4E, "T4E", "T4E - Statement of Employment Insurance and Other Benefits", "SlipData_T4E"},
    {SLIP_T4AOAS, "T4A(OAS)", "T4A(OAS) - Statement of Old Age Security", "SlipData_T4AOAS"},
    {SLIP_T4RIF, "T4RIF", "T4RIF - Statement of Income from a Registered Retirement Income Fund", "SlipData_T4RIF"},
    {SLIP_T5, "T5", "T5 - Statement of Investment Income", "SlipData_T5"},
    {SLIP_T3, "T3", "T3 - Statement of Trust Income Allocations and Designations", "SlipData_T3"},
    {SLIP_T5003, "T5003", "T5003 - Statement of Tax Shelter Information", "SlipData_T5003"},
    {SLIP_T5007, "T5007", "T5007 - Statement of Benefits", "SlipData_T5007"},
    {SLIP_T4F, "T4F", "T4F - Statement of Fishing Income", "SlipData_T4F"},
    {SLIP_T5013, "T5013", "T5013 - Statement of Partnership Income", "SlipData_T5013"},
    {SLIP_T4PS, "T4PS", "T4PS - Statement of Employee Profit-Sharing Plan Allocations and Payments",
     "SlipData_T4PS"},
    {SLIP_T4ARCA, "T4A-RCA", "T4A-RCA - Statement of Distributions from a Retirement Compensation Arrangement (RCA)",
     "SlipData_T4ARCA"},
    {SLIP_T5006, "T5006", "T5006 - Statement of Registered Labour-Sponsored Venture Capital Corporation Class A Shares",
     "SlipData_T5006"},
    {SLIP_RC62, "RC62", "RC62 - Universal Child Care Benefit Statement", "SlipData_RC62"},
    {SLIP_RC210, "RC210", "RC210 - Canada Workers Benefit Advance Payments Statement", "SlipData_RC210"},
    {SLIP_T5008, "T5008", "T5008 - Statement of Securities Transactions", "SlipData_T5008"},
    {SLIP_RRSP_CONTRIBUTION, "RRSP Contribution", "RRSP Contribution Receipt", "SlipData_RRSPContriubtion"},
    {SLIP_MB_SHELTER_BENEFIT, "Manitoba Shelter Benefit", "Manitoba Rent Assist Benefit Statement",
     "SlipData_MB_RentalAssist"},
    {SLIP_PRPP_RECEIPT, "PRPP Receipt", "Pooled Registered Pension Plan Contribution Receipt", "SlipData_PRPPReceipt"},
    {SLIP_T1204, "T1204", "T1204 - Government Service Contract Payments", "SlipData_T1204"},
    {SLIP_NR4, "NR4", "NR4 - Statement of Amounts Paid or Credited to Non-Residents of Canada", "SlipData_NR4"},
    {SLIP_T2202, "T2202", "T2202 - Tuition and Enrolment Certificate", "SlipData_T2202"},
    {SLIP_T4FHSA, "T4FHSA", "T4FHSA - First Home Savings Account Statement", "SlipData_T4FHSA"},
};

STRUCT_TAXWIZARD_INFO const Global_TaxWizard_Info[7] = {
    {TAXWIZARD_NA, "N/A", "N/A", 0},
    {TAXWIZARD_GENERAL_INFO, "General Info, Donation, Union Due", "General Info, Donation, Union Due, Moving Expenses",
     1},
    {TAXWIZARD_LAST_YEAR, "Amounts from Last Year Tax Return Assessment", "Last Year Tax Assessment", 1},
    {TAXWIZARD_DEPENDANTS, "Dependant's Information", "Dependant's Information", 1},
    {TAXWIZARD_MEDICAL_EXPENSE, "Medical Expense", "Medical Expense", 1},
    {TAXWIZARD_RRSP, "RRSP", "RRSP Claim", 1},
    {TAXWIZARD_PROVINCIAL, "Provincial Tax Information", "Provincial Tax Information", 0},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_AB_3RDPartyTypes_Info[5] = {
    {1, "Accountant"}, {2, "Lawyer"}, {3, "Bookkeeper"}, {4, "Tax preparer"}, {5, "Other"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_AB_SCH7_SRC_ADJUSTMENT_Info[4] = {
    {1, "Repayment of government assistance"},
    {2, "Recapture of investment tax credit"},
    {3, "Government assistance received or receivable"},
    {4, "Other adjustment"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_MB_S389_Book_Class_Info[6] = {
    {1, "Fiction"}, {2, "Non-fiction"}, {3, "Poetry"}, {4, "Drama"}, {5, "Biography"}, {6, "Children's literature"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_MB_S389_Book_Format_Info[3] = {
    {1, "Print"},
    {2, "Electronic (e-book)"},
    {3, "Audio book"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_QC_ANNEXE3_Info[4] = {
    {1, "Taxable Canadian corporation"},
    {2, "Connected corporation"},
    {3, "Non-connected corporation"},
    {4, "Foreign affiliate"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S11_RELATIONCODE_Info[4] = {
    {1, "Shareholder"},
    {2, "Officer"},
    {3, "Employee"},
    {4, "Individual not dealing at arm's length"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S15_T4PSFiledBy_Info[2] = {
    {1, "Corporation"},
    {2, "Trustee"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S15_TypeOfPlan_Info[5] = {
    {1, "Registered pension plan (RPP)"},
    {2, "Registered supplementary unemployment benefit plan (RSUBP)"},
    {3, "Deferred profit sharing plan (DPSP)"},
    {4, "Employees profit sharing plan (EPSP)"},
    {5, "Pooled registered pension plan (PRPP)"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S23_ASSCCODE_Info[5] = {
    {1, "Associated for the tax year"},
    {2, "Associated by virtue of subsection 256(2)"},
    {3, "Associated, subsection 256(2) election filed"},
    {4, "Not associated, but an election under subsection 256(2) applies"},
    {5, "Associated for the purposes of the small business deduction only"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S29_PAYMENT_CODE_Info[8] = {
    {1, "A - Royalties"},
    {2, "B - Rents"},
    {3, "C - Management fees/technical assistance fees"},
    {4, "D - Research and development fees"},
    {5, "E - Interest"},
    {6, "F - Dividends"},
    {7, "G - Film payments: films/TV/videotapes"},
    {8, "H - Other services"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S8_ASSET43_CODE_Info[3] = {
    {1, "Class 43 - Manufacturing and processing machinery and equipment"},
    {2, "Class 43.1 - Clean energy generation equipment"},
    {3, "Class 43.2 - Clean energy generation equipment (high efficiency)"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S97_NONRESI_CODE_Info[4] = {
    {1, "Carried on business in Canada through a permanent establishment"},
    {2, "Carried on business in Canada without a permanent establishment"},
    {3, "Disposed of taxable Canadian property"},
    {4, "Other"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_S9_RELATIONCODE_Info[4] = {
    {1, "Parent"},
    {2, "Subsidiary"},
    {3, "Associated"},
    {4, "Related, but not associated"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_T106_TPM_CODE_Info[8] = {
    {1, "Comparable uncontrolled price (CUP)"},
    {2, "Resale price method"},
    {3, "Cost plus method"},
    {4, "Profit split method"},
    {5, "Transactional net margin method (TNMM)"},
    {6, "Qualifying cost contribution arrangement"},
    {7, "Other method"},
    {8, "No method used"},
};

STRUCT_GENERAL_RELATION_CODE_INFO const Global_T661_BILLING_CODE_Info[4] = {
    {1, "Contingency fee"},
    {2, "Hourly rate"},
    {3, "Fixed fee"},
    {4, "Other"},
};
