select Customers.Company, Customers.Phone as Telephone
from Customers
where City = 'Linz' and not (Company like '%GmbH%' or CustomerSince >= '31.12.2020')
order by 1
