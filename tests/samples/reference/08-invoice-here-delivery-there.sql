with places as (
  select a.AddressID, a.City, n.CountryCode, n.CountryName, n.InCustomsUnion
  from Addresses as a
  join Countries as n on n.CountryCode = a.CountryCode
)
select o.OrderID, o.OrderDate, c.Company, bill.City, ship.City, ship.CountryName
from Orders as o
join Customers as c on c.CustomerID = o.CustomerID
join places as bill on bill.AddressID = o.BillingAddressID
join places as ship on ship.AddressID = o.ShippingAddressID and not ship.InCustomsUnion
where bill.CountryCode <> ship.CountryCode and strftime('%Y', o.OrderDate) = '2025'
order by o.OrderID
